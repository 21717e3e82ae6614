// SPDX-License-Identifier: MIT
#include "editor/fieldediting.h"

#include "editor/editkeys.h"
#include "editor/editrules.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QQuickItem>
#include <QTextDocument>

namespace vesk {

FieldEditing &FieldEditing::of(QQuickItem &item)
{
    if (auto *known = item.findChild<FieldEditing *>(QString(), Qt::FindDirectChildrenOnly))
        return *known;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the item owns it.
    return *new FieldEditing(item);
}

FieldEditing::FieldEditing(QQuickItem &item)
    : QObject(&item)
    , m_edit(&item)
{
    connect(&m_text, &FieldText::changed, this, [this](const Splice &change) { m_steps.record(change); });
    connect(&m_text, &FieldText::loaded, this, [this] { m_steps.clear(); });
    QTextDocument *document = m_edit.document();
    if (!document || isReadOnly())
        return;
    m_directions.emplace(*document);
    m_directions->touch(0, document->characterCount());
    m_directions->apply();
    connect(document, &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { m_directions->touch(position, added); });
    connect(document, &QTextDocument::contentsChanged, this, [this] { m_directions->apply(); });
}

bool FieldEditing::isReadOnly() const
{
    return m_edit.item()->property("readOnly").toBool();
}

bool FieldEditing::handleShortcut(QKeyEvent &event) const
{
    // A key that is accepted here arrives as a key press instead of triggering a shortcut of the window.
    const bool isOurs = !isReadOnly() && (m_edit.isComposing() || editkeys::isRedo(event));
    if (isOurs)
        event.accept();
    return isOurs;
}

bool FieldEditing::handleKey(QKeyEvent &event)
{
    if (isReadOnly())
        return false;
    m_steps.beforeKey(event.timestamp());
    const bool isHandled =
        editkeys::isLostInComposing(event, m_edit) || editkeys::handle(event, m_edit, m_text, m_steps);
    if (isHandled)
        event.accept();
    return isHandled;
}

bool FieldEditing::handleInputMethod(const QInputMethodEvent &event)
{
    m_steps.beforeInputMethod();
    const auto whole = editrules::wholeCharacters(m_text.text(), m_edit.selection(),
                                                  {event.replacementStart(), event.replacementLength()});
    if (!whole)
        return false;
    QInputMethodEvent replacing(event.preeditString(), event.attributes());
    replacing.setCommitString(event.commitString(), whole->start, whole->length);
    QCoreApplication::sendEvent(m_edit.item(), &replacing);
    return true;
}

} // namespace vesk
