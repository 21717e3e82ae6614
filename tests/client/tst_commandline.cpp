// SPDX-License-Identifier: MIT
#include "client/commandline.h"
#include "client/keyslist.h"
#include "client/noteslist.h"
#include "virtualdesktop/files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;
using Kind = CommandLine::Kind;

/// What the command line accepts, and the format of the list of notes.
class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void understands_data();
    void understands();
    void refuses_data();
    void refuses();
    void isDocumentedEverywhere_data();
    void isDocumentedEverywhere();
    void listsNewestFirst();
    void listsKeys();
};

void TestCommandLine::understands_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("method");
    const auto row = [](const char *words, Kind kind, const char *method = "") {
        QTest::newRow(words) << QString::fromLatin1(words) << kind << QString::fromLatin1(method);
    };
    // The desktop tests cover the other commands.
    row("", Kind::Start);
    row("--background", Kind::Start);
    row("--gpu --background", Kind::Start);
    row("capture --checklist", Kind::Call, "CaptureChecklist");
    row("add-to-checklist", Kind::Call, "AddToChecklist");
    row("save-prompt", Kind::Call, "SavePrompt");
    row("quick-note --checklist", Kind::Call, "QuickChecklist");
    row("add --append", Kind::Add); // text to add is never taken for an option
    row("add -", Kind::AddInput);
    row("list --json", Kind::List);
    row("keys --json", Kind::Keys);
    row("access", Kind::Access); // refused by the command itself
    row("capture --help", Kind::Help);
    row("-v", Kind::Version);
}

void TestCommandLine::understands()
{
    QFETCH(QString, words);
    QFETCH(Kind, kind);
    QFETCH(QString, method);
    const QStringList list = words.split(u' ', Qt::SkipEmptyParts);
    const ParsedCommandLine parsed = parseCommandLine(list);
    QVERIFY2(parsed.command, qPrintable(parsed.error));
    QCOMPARE(parsed.command->kind, kind);
    QCOMPARE(parsed.command->method, method);
    QCOMPARE(parsed.command->isInBackground, list.contains(u"--background"_s));
    QCOMPARE(parsed.command->isJson, list.contains(u"--json"_s));
    QCOMPARE(parsed.command->text, kind == Kind::Add ? list.at(1) : QString());
}

void TestCommandLine::refuses_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("named");
    QTest::newRow("no such command") << QStringList{u"captur"_s} << u"captur"_s;
    QTest::newRow("no such option") << QStringList{u"--backgrund"_s} << u"--backgrund"_s;
    QTest::newRow("option of another command") << QStringList{u"list"_s, u"--append"_s} << u"--append"_s;
    QTest::newRow("two options") << QStringList{u"capture"_s, u"--append"_s, u"--checklist"_s} << u"one"_s;
    QTest::newRow("a word where none belongs") << QStringList{u"toggle"_s, u"now"_s} << u"now"_s;
    QTest::newRow("empty option") << QStringList{u"list"_s, u"--json"_s, {}} << u"one"_s;
    QTest::newRow("start with a command behind") << QStringList{u"--gpu"_s, u"toggle"_s} << u"toggle"_s;
    QTest::newRow("nothing to add") << QStringList{u"add"_s} << u"text"_s;
    QTest::newRow("text without quotes") << QStringList{u"add"_s, u"two"_s, u"words"_s} << u"quotes"_s;
}

void TestCommandLine::refuses()
{
    QFETCH(QStringList, words);
    QFETCH(QString, named);
    const ParsedCommandLine parsed = parseCommandLine(words);
    QVERIFY(!parsed.command);
    QVERIFY2(parsed.error.contains(named), qPrintable(parsed.error));
}

void TestCommandLine::isDocumentedEverywhere_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file :
         {"vesk.1.in", "completions/vesk.bash", "completions/_vesk", "completions/vesk.fish"})
        QTest::newRow(file) << QString::fromLatin1(file);
}

/// The commands and options in the help are also in the manual page and the completions.
void TestCommandLine::isDocumentedEverywhere()
{
    QFETCH(QString, file);
    QString text = QString::fromUtf8(contentsOf(QStringLiteral(VESK_PACKAGING "/") + file));
    // Convert the spellings of the manual page and of fish.
    text.replace(u"\\-"_s, u"-"_s).replace(u"-l "_s, u"--"_s);

    static const QRegularExpression kCall(u"^  \\S.*?  "_s, QRegularExpression::MultilineOption);
    static const QRegularExpression kWord(u"(--)?\\b[a-z][a-z-]+\\b"_s);
    int found = 0;
    for (auto call = kCall.globalMatch(commandLineHelp()); call.hasNext();) {
        for (auto word = kWord.globalMatch(call.next().captured()); word.hasNext(); ++found) {
            const QString name = word.next().captured();
            const QRegularExpression whole(u"(?<![\\w-])%1(?![\\w-])"_s.arg(name));
            QVERIFY2(text.contains(whole), qPrintable(name));
        }
    }
    QVERIFY(found > 20);
}

void TestCommandLine::listsNewestFirst()
{
    using namespace std::chrono_literals;
    const RecordId id = QUuid::createUuid();
    const Note::Fields older{.id = id,
                             .text = u"☐ eggs\nmilk"_s,
                             .createdAt = Date(1s),
                             .updatedAt = Date(2s),
                             .isPinned = true,
                             .sourceApp = u"Mousepad"_s,
                             .sourceBundleID = {},
                             .sourceTitle = {},
                             .sourceURL = {}};
    Note::Fields newer = older;
    newer.text = u"a \x1b[31mred\x1b[0m title"_s;
    newer.updatedAt = Date(3s);

    const QList<QByteArray> lines = notesAsLines({older, newer}).split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(0).endsWith("\ta [31mred[0m title"), lines.at(0).constData());
    QVERIFY2(lines.at(1).endsWith("\teggs"), lines.at(1).constData());
    QVERIFY(lines.at(2).isEmpty());

    const QJsonArray array = QJsonDocument::fromJson(notesAsJson({older, newer})).array();
    QCOMPARE(array.size(), 2);
    QCOMPARE(array.at(0).toObject().value(u"text"_s), newer.text.toString());
    const QJsonObject expected{
        {u"id"_s, id.toString(QUuid::WithoutBraces)},
        {u"text"_s, older.text.toString()},
        {u"createdAt"_s, u"1970-01-01T00:00:01.000Z"_s},
        {u"updatedAt"_s, u"1970-01-01T00:00:02.000Z"_s},
        {u"isPinned"_s, true},
        {u"sourceApp"_s, u"Mousepad"_s},
    };
    QCOMPARE(array.at(1).toObject(), expected);
}

void TestCommandLine::listsKeys()
{
    const auto key = [](const QString &command, const QString &keys, const QString &state,
                        const QStringList &takenBy = {}) {
        return KeysReport::Key{
            .command = command, .keys = keys, .purpose = u"do it"_s, .state = state, .takenBy = takenBy};
    };
    const KeysReport sent{.keys = {key(u"a"_s, u"Super+A"_s, u"works"_s),
                                   key(u"bc"_s, u"Super+Alt+B"_s, u"taken"_s, {u"Openbox"_s, u"p"_s}),
                                   key(u"d"_s, u"Super+D"_s, u"taken"_s), key(u"e"_s, {}, u"off"_s),
                                   key(u"f"_s, u"Shift Shift"_s, u"no-access"_s)},
                          .problems = {}};
    const KeysReport report = KeysReport::fromMaps(sent.toMaps(), {});
    QCOMPARE(QString::fromUtf8(keysAsLines(report)), u"Super+A      works                     a   do it\n"
                                                     "Super+Alt+B  taken by Openbox or p     bc  do it\n"
                                                     "Super+D      taken by another program  d   do it\n"
                                                     "none         off                       e   do it\n"
                                                     "Shift Shift  needs access              f   do it\n"_s);
    const QJsonArray array = QJsonDocument::fromJson(keysAsJson(report)).array();
    QCOMPARE(array.size(), 5);
    QVERIFY(!array.at(0).toObject().contains(u"takenBy"_s));
    QCOMPARE(array.at(1).toObject().value(u"takenBy"_s).toArray(), (QJsonArray{u"Openbox"_s, u"p"_s}));
    QCOMPARE(array.at(2).toObject().value(u"takenBy"_s).toArray(), QJsonArray());
    QCOMPARE(array.at(3).toObject().value(u"keys"_s).toString(), QString());
}

QTEST_APPLESS_MAIN(TestCommandLine)

#include "tst_commandline.moc"
