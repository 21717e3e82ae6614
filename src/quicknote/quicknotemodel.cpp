// SPDX-License-Identifier: MIT
#include "quicknote/quicknotemodel.h"

#include "notes/markup.h"

namespace vesk {

using namespace Qt::StringLiterals;

void QuickNoteModel::begin(QuickNoteBox::Mode mode)
{
    QString text = m_text;
    if (m_mode != mode) {
        m_mode = mode;
        text.swap(m_otherDraft);
        Q_EMIT modeChanged();
    }
    if (isChecklist() && text.isEmpty())
        text = markup::kUnticked.toString();
    setText(text);
}

QString QuickNoteModel::body() const
{
    return isChecklist() ? markup::cleanChecklist(m_text) : markup::trimmed(m_text);
}

void QuickNoteModel::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT textChanged();
}

void QuickNoteModel::setRemark(const QString &remark)
{
    if (m_remark == remark)
        return;
    m_remark = remark;
    Q_EMIT remarkChanged();
}

QString QuickNoteModel::title() const
{
    return isChecklist() ? tr("Quick Checklist") : tr("Quick Note");
}

QString QuickNoteModel::symbol() const
{
    return isChecklist() ? u"checklist"_s : u"square.and.pencil"_s;
}

} // namespace vesk
