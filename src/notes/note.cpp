// SPDX-License-Identifier: MIT
#include "notes/note.h"

#include <utility>

namespace vesk {

namespace {

void makeWellFormed(std::optional<QString> &text)
{
    if (text)
        text = markup::wellFormed(*text);
}

} // namespace

Note::Note(const Clock &clock, const QString &text, const std::optional<CaptureSource> &source)
    : Note(clock, Fields{
                      .id = QUuid::createUuid(),
                      .text = text,
                      .createdAt = clock.now(),
                      .updatedAt = clock.now(),
                      .isPinned = false,
                      .sourceApp = source ? std::optional(source->app) : std::nullopt,
                      .sourceBundleID = source ? source->bundleID : std::nullopt,
                      .sourceTitle = source ? source->title : std::nullopt,
                      .sourceURL = source ? source->url : std::nullopt,
                  })
{
}

Note::Note(const Clock &clock, Fields fields)
    : m_clock(clock)
    , m_fields(std::move(fields))
{
    makeWellFormed(m_fields.sourceApp);
    makeWellFormed(m_fields.sourceBundleID);
    makeWellFormed(m_fields.sourceTitle);
    makeWellFormed(m_fields.sourceURL);
}

void Note::setText(const QString &text)
{
    m_fields.text = text;
    m_fields.updatedAt = m_clock.now();
    changed();
}

void Note::setPinned(bool isPinned)
{
    if (isPinned == m_fields.isPinned)
        return;
    m_fields.isPinned = isPinned;
    changed();
}

void Note::toggleItem(qsizetype line)
{
    const QString before = text();
    const QString toggled = markup::toggledItem(before, line);
    if (toggled == before)
        return;
    m_fields.text = toggled;
    changed();
}

void Note::addChecklistItems(const QString &text)
{
    setText(markup::withChecklistItems(this->text(), markup::wellFormed(text)));
}

void Note::append(const QString &text)
{
    setText(markup::appended(this->text(), markup::wellFormed(text)));
}

void Note::changed()
{
    if (m_observer)
        m_observer->noteChanged(*this);
}

} // namespace vesk
