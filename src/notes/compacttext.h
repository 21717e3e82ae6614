// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace vesk {

/// A record's text as it is kept in memory: UTF-8, which takes half the space of a QString in most languages.
/// Always well formed.
class CompactText final
{
public:
    CompactText() = default;
    /// Lone surrogates become U+FFFD.
    CompactText(const QString &text); // NOLINT(google-explicit-constructor): the same text.

    /// Invalid UTF-8 becomes U+FFFD.
    [[nodiscard]] static CompactText fromUtf8(QByteArrayView utf8);

    /// Converted on every call.
    [[nodiscard]] QString toString() const { return decoded(m_utf8); }
    [[nodiscard]] const QByteArray &utf8() const { return m_utf8; }

    friend bool operator==(const CompactText &, const CompactText &) = default;

private:
    static QString decoded(QByteArrayView utf8);

    QByteArray m_utf8;
};

} // namespace vesk
