// SPDX-License-Identifier: MIT
#include "editor/lentpasteboards.h"

#include <QQmlEngine>

namespace vesk {

LentPasteboards::LentPasteboards(Pasteboard &pasteboard, Pasteboard *primary, QQmlEngine &engine)
    : QObject(&engine)
    , m_pasteboard(pasteboard)
    , m_primary(primary)
{
}

LentPasteboards *LentPasteboards::findFor(const QQmlEngine &engine)
{
    return engine.findChild<LentPasteboards *>(QString(), Qt::FindDirectChildrenOnly);
}

void lendToEditors(QQmlEngine &engine, Pasteboard &pasteboard, Pasteboard *primary)
{
    new LentPasteboards(pasteboard, primary, engine);
}

} // namespace vesk
