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
    m_fields.text = markup::wellFormed(m_fields.text);
    makeWellFormed(m_fields.sourceApp);
    makeWellFormed(m_fields.sourceBundleID);
    makeWellFormed(m_fields.sourceTitle);
    makeWellFormed(m_fields.sourceURL);
}

void Note::setText(const QString &text)
{
    m_fields.text = markup::wellFormed(text);
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
    QString toggled = markup::toggledItem(m_fields.text, line);
    if (toggled == m_fields.text)
        return;
    m_fields.text = std::move(toggled);
    changed();
}

void Note::addChecklistItems(const QString &text)
{
    setText(markup::withChecklistItems(m_fields.text, markup::wellFormed(text)));
}

void Note::append(const QString &text)
{
    setText(markup::appended(m_fields.text, markup::wellFormed(text)));
}

void Note::changed()
{
    if (m_observer)
        m_observer->noteChanged(*this);
}

} // namespace vesk
