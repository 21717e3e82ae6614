// SPDX-License-Identifier: MIT
#include "translations/translation.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// A message in a translation file.
struct Message
{
    QString context;
    QString source = {};
    /// One, or one for each plural form if the message contains a number.
    QStringList translations = {};
    bool isPlural = false;
    bool isFinished = true;
};

QList<Message> messagesOf(const QString &language)
{
    QFile file(QStringLiteral(VESK_TRANSLATIONS) + u"/vesk_%1.ts"_s.arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1) {
            context = xml.readElementText();
        } else if (xml.name() == "message"_L1) {
            messages.append(
                {.context = context, .isPlural = xml.attributes().value("numerus"_L1) == "yes"_L1});
        } else if (xml.name() == "source"_L1) {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            messages.last().isFinished = !xml.attributes().hasAttribute("type"_L1);
            if (!messages.last().isPlural)
                messages.last().translations = QStringList(xml.readElementText());
        } else if (xml.name() == "numerusform"_L1) {
            messages.last().translations.append(xml.readElementText());
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

QStringList allOf(const QString &text, const QRegularExpression &pattern)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        found.append(match.captured());
    found.sort();
    return found;
}

/// What a translation must share with its source: placeholders, keys, and the dots of a command that asks for
/// more.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression pattern(
        u"%L?[0-9n]|[\u2318\u2325\u2303\u21E7\u21A9\u232B]|\u2026$|--[a-z]+"_s);
    return allOf(text, pattern);
}

} // namespace

/// Guards the translation files and the choice among them.
class TranslationTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void everyMessageIsTranslated_data();
    void everyMessageIsTranslated();
    void firstSupportedLanguageIsUsed_data();
    void firstSupportedLanguageIsUsed();
    void numbersAndDatesFollowTheTexts();
};

void TranslationTest::everyMessageIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    const QStringList files = QDir(QStringLiteral(VESK_TRANSLATIONS)).entryList({u"vesk_*.ts"_s});
    QVERIFY(files.size() > 2);
    for (const QString &file : files) {
        const QString language = file.section(u'_', 1).section(u'.', 0, 0);
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TranslationTest::everyMessageIsTranslated()
{
    QFETCH(QString, language);
    const Translation translation({language});
    QCOMPARE(QLocale::languageToCode(translation.language().language()), language);
    const QList<Message> messages = messagesOf(language);
    QVERIFY(!messages.isEmpty());
    for (const Message &message : messages) {
        const QByteArray where = (message.context + u": "_s + message.source).toUtf8();
        QVERIFY2(message.isFinished && !message.translations.isEmpty(), where.constData());
        for (const QString &text : message.translations) {
            QVERIFY2(!text.isEmpty(), where.constData());
            // "One item" needs no placeholder for the number.
            const bool mayLackNumber = message.isPlural && text != message.translations.last();
            QStringList expected = fixedParts(message.source);
            if (mayLackNumber && !text.contains("%Ln"_L1) && !text.contains("%n"_L1))
                expected.removeIf([](const QString &part) { return part == "%Ln"_L1 || part == "%n"_L1; });
            QCOMPARE(fixedParts(text), expected);
        }
        if (!message.isPlural)
            QCOMPARE(QCoreApplication::translate(message.context.toUtf8().constData(),
                                                 message.source.toUtf8().constData()),
                     message.translations.first());
    }
}

void TranslationTest::firstSupportedLanguageIsUsed_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QLocale::Language>("taken");
    QTest::newRow("of a country") << QStringList{u"de-Latn-AT"_s} << QLocale::German;
    QTest::newRow("second choice") << QStringList{u"tlh"_s, u"he-IL"_s, u"de"_s} << QLocale::Hebrew;
    QTest::newRow("English before another") << QStringList{u"en-US"_s, u"de"_s} << QLocale::English;
    QTest::newRow("no supported language") << QStringList{u"tlh"_s} << QLocale::English;
    QTest::newRow("none at all") << QStringList{} << QLocale::English;
}

void TranslationTest::firstSupportedLanguageIsUsed()
{
    QFETCH(QStringList, languages);
    QFETCH(QLocale::Language, taken);
    const Translation translation(languages);
    QCOMPARE(translation.language().language(), taken);
    const QString quit = QCoreApplication::translate("vesk::Command", "Quit");
    QCOMPARE(quit == u"Quit", taken == QLocale::English);
    // English has a file too, for the singular forms.
    const QString one = QCoreApplication::translate("SectionHeader", "%Ln items", nullptr, 1);
    QCOMPARE(one == u"1 item", taken == QLocale::English);
}

void TranslationTest::numbersAndDatesFollowTheTexts()
{
    QLocale::setDefault(QLocale(u"en_US"_s));
    {
        const Translation translation({u"de-AT"_s});
        QCOMPARE(QLocale().name(), u"de_AT"_s);
    }
    QLocale::setDefault(QLocale(u"de_CH"_s));
    {
        const Translation translation({u"de"_s});
        QCOMPARE(QLocale().name(), u"de_CH"_s);
    }
    QLocale::setDefault(QLocale(u"fr_FR"_s));
    {
        const Translation translation({u"fr-FR"_s});
        QCOMPARE(QLocale().name(), u"fr_FR"_s);
    }
}

} // namespace vesk

QTEST_GUILESS_MAIN(vesk::TranslationTest)
#include "tst_translation.moc"
