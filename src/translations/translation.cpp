// SPDX-License-Identifier: MIT
#include "translations/translation.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

// English is the language of the sources, so its file contains only plurals.
const auto kEnglish = u"en"_s;

QString fileOf(const QString &language)
{
    return u":/vesk/translations/vesk_%1.qm"_s.arg(language);
}

/// The name of the translation for "de-AT": "de-AT", otherwise "de"; empty if there is neither.
QString findFor(QString language)
{
    if (language == "C"_L1)
        return kEnglish;
    while (!language.isEmpty() && !QFile::exists(fileOf(language)))
        language.truncate(std::max<qsizetype>(0, language.lastIndexOf(u'-')));
    return language;
}

} // namespace

Translation::Translation(const QStringList &languages)
    : m_language(QLocale::English)
{
    QString found;
    QString wanted;
    for (const QString &language : languages) {
        if (found = findFor(language); !found.isEmpty()) {
            wanted = language;
            break;
        }
    }
    if (m_translator.load(fileOf(found.isEmpty() ? kEnglish : found)))
        QCoreApplication::installTranslator(&m_translator);
    if (found.isEmpty())
        return;
    m_language = QLocale(found);
    if (wanted != "C"_L1 && QLocale().language() != m_language.language())
        QLocale::setDefault(QLocale(wanted));
}

} // namespace vesk
