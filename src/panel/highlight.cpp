// SPDX-License-Identifier: MIT
#include "panel/highlight.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <array>

namespace vesk {

namespace {

/// A text without case and diacritics, and the origin of each of its units.
struct Folded
{
    QString text;
    /// For each unit of `text`, the start of its letter in the original; finally, the original's length.
    QList<qsizetype> origins;
};

bool isMark(char32_t letter)
{
    return QChar::category(letter) == QChar::Mark_NonSpacing;
}

/// Full case folding, which turns the German sharp s into two letters; Qt folds one letter into one.
QString withoutCase(const QString &letter)
{
    std::array<UChar, 8> folded{};
    UErrorCode status = U_ZERO_ERROR;
    const int length = u_strFoldCase(folded.data(), static_cast<int>(folded.size()),
                                     reinterpret_cast<const UChar *>(letter.utf16()),
                                     static_cast<int>(letter.size()), U_FOLD_CASE_DEFAULT, &status);
    return U_SUCCESS(status) ? QString::fromUtf16(folded.data(), length) : letter;
}

Folded fold(const QString &text)
{
    Folded folded;
    folded.text.reserve(text.size());
    folded.origins.reserve(text.size() + 1);
    qsizetype origin = 0;
    for (const char32_t letter : text.toUcs4()) {
        const qsizetype length = QChar::requiresSurrogates(letter) ? 2 : 1;
        QString base;
        if (letter < 0x80) {
            base = QChar(static_cast<char16_t>(letter)).toLower();
        } else {
            const QString lower = withoutCase(QString::fromUcs4(&letter, 1));
            for (const char32_t part : lower.normalized(QString::NormalizationForm_D).toUcs4()) {
                if (!isMark(part))
                    base += QString::fromUcs4(&part, 1);
            }
        }
        folded.text += base;
        folded.origins.insert(folded.origins.size(), base.size(), origin);
        origin += length;
    }
    folded.origins.append(origin);
    return folded;
}

} // namespace

QList<TextRange> matchRanges(const QString &text, const QString &query)
{
    QList<TextRange> ranges;
    const QString wanted = fold(query).text;
    if (wanted.isEmpty())
        return ranges;
    const Folded folded = fold(text);
    qsizetype from = 0;
    while ((from = folded.text.indexOf(wanted, from)) >= 0) {
        const qsizetype start = folded.origins.at(from);
        // A match of half a letter that folds into two (the German sharp s) includes the whole letter.
        qsizetype end = from + wanted.size();
        while (end < folded.text.size() && folded.origins.at(end) == folded.origins.at(end - 1))
            ++end;
        ranges.append({.start = start, .length = folded.origins.at(end) - start});
        from = end;
    }
    return ranges;
}

} // namespace vesk
