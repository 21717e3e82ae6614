// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace vesk {

/// The program's texts in the user's language. Created in main() right after the application object, before
/// any text is needed; texts are translated as long as it lives.
class Translation final
{
public:
    /// Uses the first of `languages` that Vesk supports (names such as "de-AT", best first), and English if
    /// it supports none. If that is not the language of the desktop's formats, numbers and dates follow it,
    /// so that each text is in one language.
    explicit Translation(const QStringList &languages = QLocale().uiLanguages());

    /// The language of the texts.
    [[nodiscard]] const QLocale &language() const { return m_language; }

private:
    QTranslator m_translator;
    QLocale m_language;
};

} // namespace vesk
