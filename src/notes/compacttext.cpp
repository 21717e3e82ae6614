// SPDX-License-Identifier: MIT
#include "notes/compacttext.h"

#include "notes/markup.h"

namespace vesk {

CompactText::CompactText(const QString &text)
    : m_utf8(markup::wellFormed(text).toUtf8())
{
    m_utf8.squeeze();
}

CompactText CompactText::fromUtf8(QByteArrayView utf8)
{
    if (!utf8.isValidUtf8())
        return decoded(utf8);
    CompactText result;
    result.m_utf8 = utf8.toByteArray();
    return result;
}

QString CompactText::decoded(QByteArrayView utf8)
{
    QString result = QString::fromUtf8(utf8);
    // Qt treats a leading U+FEFF as a byte order mark and drops it.
    if (utf8.startsWith("\xEF\xBB\xBF"))
        result.prepend(QChar(QChar::ByteOrderMark));
    return result;
}

} // namespace vesk
