// SPDX-License-Identifier: MIT
#include "editor/lentpasteboards.h"

#include "editor/fieldguard.h"

#include <QQmlEngine>

namespace vesk {

LentPasteboards::LentPasteboards(Pasteboard &pasteboard, Pasteboard *primary, Pasteboard *dragged,
                                 QQmlEngine &engine)
    : QObject(&engine)
    , m_pasteboard(pasteboard)
    , m_primary(primary)
    , m_dragged(dragged)
{
}

LentPasteboards *LentPasteboards::findFor(const QQmlEngine &engine)
{
    return engine.findChild<LentPasteboards *>(QString(), Qt::FindDirectChildrenOnly);
}

void lendToEditors(QQmlEngine &engine, Pasteboard &pasteboard, Pasteboard *primary, Pasteboard *dragged)
{
    new LentPasteboards(pasteboard, primary, dragged, engine);
    new FieldGuard(engine);
}

} // namespace vesk
