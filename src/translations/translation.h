// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace vesk {

/// The program's texts in the user's language. Made in main(), right after the application object and
/// before any text is asked for; the texts stay translated for as long as it lives.
class Translation final
{
public:
    /// Takes the first of `languages` that Vesk has (names such as "de-AT", best first), and English if it
    /// has none. Where the language is not that of the desktop's formats, numbers and dates follow it, so
    /// that a text is in one language.
    explicit Translation(const QStringList &languages = QLocale().uiLanguages());

    /// What the texts are in.
    [[nodiscard]] const QLocale &language() const { return m_language; }

private:
    QTranslator m_translator;
    QLocale m_language;
};

} // namespace vesk
