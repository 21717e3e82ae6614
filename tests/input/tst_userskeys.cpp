// SPDX-License-Identifier: MIT
#include "input/globalkeys.h"
#include "input/keynames.h"
#include "input/keysettings.h"
#include "platform/memory/memorykeyboard.h"
#include "virtualdesktop/files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

using State = GlobalKeys::State;

constexpr Qt::KeyboardModifiers kSuperAlt = Qt::MetaModifier | Qt::AltModifier;
constexpr KeyPosition kQ{16};
constexpr KeyPosition kF5{63};
constexpr KeyCombination kSuperAltQ{.key = kQ, .modifiers = kSuperAlt};

/// The letters that are elsewhere on a French keyboard, as far as needed here.
const QHash<KeyPosition, QChar> kFrench{{kQ, u'A'}, {KeyPosition(30), u'Q'}, {KeyPosition::N, u'N'}};
const QHash<KeyPosition, QChar> kRussian{{kQ, u'Й'}, {KeyPosition::N, u'Т'}};

/// Each command's combination in the notation of the file, separated by commas, if it is not the default.
QString choices(const KeySettings &settings, const HotKeys *keyboard)
{
    QStringList words;
    for (const CommandRow &row : commandsWithKeys()) {
        const auto &combination = settings.of(row.command);
        if (combination != row.combination)
            words.append(row.words.toString() + u": "_s
                         + (combination ? keynames::written(*combination, keyboard) : u"off"_s));
    }
    return words.join(u", "_s);
}

/// The program's keys with an in-memory keyboard and a file in a folder.
struct World
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"Vesk/Keys.conf"_s);
    MemoryHotKeys keyboard;
    std::unique_ptr<GlobalKeys> keys;
    QList<Command> pressed;

    explicit World(const QString &text = {})
    {
        if (!text.isEmpty())
            write(text);
        keys = std::make_unique<GlobalKeys>(keyboard, path);
        QObject::connect(keys.get(), &GlobalKeys::pressed, keys.get(),
                         [this](Command command) { pressed.append(command); });
        keys->start();
    }

    void write(const QString &text) const { QVERIFY(writeFile(path, text.toUtf8())); }
    /// As many editors save a file.
    void replace(const QString &text) const
    {
        const QString draft = path + u'~';
        QVERIFY(writeFile(draft, text.toUtf8()));
        QVERIFY(std::rename(qPrintable(draft), qPrintable(path)) == 0);
    }
    [[nodiscard]] QString written(Command command) const
    {
        const auto combination = keys->key(command).combination;
        return combination ? keynames::written(*combination, &keyboard) : u"off"_s;
    }
    /// Presses a combination; returns the commands that it triggered.
    QList<Command> press(KeyCombination combination)
    {
        pressed.clear();
        keyboard.press(combination);
        return pressed;
    }
};

} // namespace

/// The combinations that the user has chosen, validly or not.
class TestUsersKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void fileIsRead_data();
    static void fileIsRead();
    static void layoutDecides_data();
    static void layoutDecides();
    static void fileIsFollowed();
    static void swappedCombinationsWork();
    static void doubleShiftCanBeAnything();
    static void lettersFollowTheLayout();
};

void TestUsersKeys::fileIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("choices");
    // A part of each problem, in order, separated by "|".
    QTest::addColumn<QString>("problems");
    const auto row = [](const char *name, const QString &text, const QString &choices,
                        const QString &problems = {}) { QTest::newRow(name) << text << choices << problems; };
    row("no file", {}, {});
    row("letters, case and spaces", u"  Capture --append=x\ncapture = super + ALT+q \r\n"_s,
        u"capture: Super+Alt+Q"_s, u"line 1: Unknown command: “Capture --append”"_s);
    row("option apart", u"capture   --append=Ctrl+Alt+F5"_s, u"capture --append: Alt+Ctrl+F5"_s);
    row("remarks", u"# capture=Super+Q\n; toggle=none\n\n"_s, {});
    row("off", u"toggle=\nwrite=none"_s, u"toggle: off, write: off"_s);
    row("signs", u"toggle=Super+=\nwrite=Ctrl+Alt+#\nquit=x"_s, u"toggle: Super+="_s,
        u"Unknown key: “#”. “write” keeps Super+Alt+Ctrl+N|command: “quit”"_s);
    row("unknown key", u"toggle=Super+Foo"_s, {},
        u"line 1: Unknown key: “Foo”. “toggle” keeps Super+Alt+T."_s);
    row("unknown modifier", u"toggle=Hyper+T"_s, {}, u"“Hyper” is not a modifier"_s);
    row("no key", u"toggle=Super+Alt"_s, {}, u"key after the modifiers is missing"_s);
    row("no modifier", u"toggle=F5\nwrite=Shift+N"_s, {},
        u"line 1: The combination needs Super|line 2: The combination needs Super"_s);
    row("no line", u"toggle Super+Q"_s, {}, u"“toggle Super+Q” does not have the form"_s);
    row("said twice", u"toggle=Super+Q\ntoggle=Super+W"_s, u"toggle: Super+Q"_s, u"already set in line 1"_s);
    row("another's default", u"capture=Super+Alt+T"_s, {},
        u"Super+Alt+T is already used for “toggle”. “capture” keeps"_s);
    row("another's line", u"toggle=Super+Q\ncapture=Super+Q"_s, u"toggle: Super+Q"_s,
        u"line 2: Super+Q is already used for “toggle”"_s);
    row("changed places", u"toggle=Super+Alt+N\ncapture=Super+Alt+T"_s,
        u"capture: Super+Alt+T, toggle: Super+Alt+N"_s);
    // Each falls back because of another; in the end all have one.
    row("chain", u"capture=Super+Alt+T\ntoggle=Super+Alt+C\nwrite=Super+Alt+C"_s, {},
        u"line 3: |line 2: |line 1: "_s);
    row("double Shift", u"save-prompt=Shift Shift\ncapture=Shift+Shift"_s, {}, u"Only save-prompt"_s);
    row("prompt by a key", u"save-prompt=Super+P"_s, u"save-prompt: Super+P"_s);
}

void TestUsersKeys::fileIsRead()
{
    QFETCH(const QString, text);
    QFETCH(const QString, problems);
    const KeySettings settings = readKeySettings(text, nullptr);
    QTEST(choices(settings, nullptr), "choices");
    const QStringList expected = problems.split(u'|', Qt::SkipEmptyParts);
    QVERIFY2(settings.problems.size() == expected.size(), qPrintable(settings.problems.join(u'\n')));
    for (qsizetype i = 0; i < expected.size(); ++i)
        QVERIFY2(settings.problems.at(i).contains(expected.at(i)), qPrintable(settings.problems.at(i)));
}

void TestUsersKeys::layoutDecides_data()
{
    QTest::addColumn<QHash<KeyPosition, QChar>>("layout");
    QTest::addColumn<QString>("letter");
    QTest::addColumn<KeyPosition>("key");
    QTest::addColumn<QString>("shown");
    QTest::newRow("ANSI") << QHash<KeyPosition, QChar>() << u"Q"_s << kQ << u"Q"_s;
    QTest::newRow("French") << kFrench << u"a"_s << kQ << u"A"_s;
    QTest::newRow("Latin letter on a Russian keyboard") << kRussian << u"N"_s << KeyPosition::N << u"N"_s;
    QTest::newRow("Russian letter") << kRussian << u"т"_s << KeyPosition::N << u"N"_s;
    QTest::newRow("named key") << kRussian << u"f5"_s << kF5 << u"F5"_s;
}

void TestUsersKeys::layoutDecides()
{
    using Layout = QHash<KeyPosition, QChar>;
    QFETCH(const Layout, layout);
    QFETCH(const QString, letter);
    MemoryHotKeys keyboard;
    keyboard.setLayout(layout);
    const auto settings = readKeySettings(u"toggle=Super+Ctrl+"_s + letter, &keyboard);
    QVERIFY2(settings.problems.isEmpty(), qPrintable(settings.problems.join(u'\n')));
    const auto toggle = settings.of(Command::Toggle);
    QVERIFY(toggle.has_value());
    QTEST(toggle->key, "key");
    QTEST(keynames::nameOf(toggle->key, &keyboard), "shown");
}

/// Written in place, replaced, removed and written again; it did not exist at the start.
void TestUsersKeys::fileIsFollowed()
{
    World world;
    QCOMPARE(world.written(Command::Toggle), u"Super+Alt+T"_s);
    world.write(u"toggle=Super+Q"_s);
    QTRY_COMPARE(world.written(Command::Toggle), u"Super+Q"_s);
    world.write(u"toggle=Super+W"_s);
    QTRY_COMPARE(world.written(Command::Toggle), u"Super+W"_s);
    world.replace(u"toggle=Super+E\nwrite=bad"_s);
    QTRY_COMPARE(world.written(Command::Toggle), u"Super+E"_s);
    QCOMPARE(world.keys->problems().size(), 1);
    QVERIFY(QFile::remove(world.path));
    QTRY_COMPARE(world.written(Command::Toggle), u"Super+Alt+T"_s);
    QVERIFY(world.keys->problems().isEmpty());
    QCOMPARE(world.press(combinationOf(Command::Toggle)), QList{Command::Toggle});
    world.replace(u"toggle=none"_s);
    QTRY_COMPARE(world.keys->key(Command::Toggle).state, State::Off);
    QVERIFY(world.press(combinationOf(Command::Toggle)).isEmpty());
}

void TestUsersKeys::swappedCombinationsWork()
{
    World world;
    world.replace(u"toggle=Super+Alt+N\ncapture=Super+Alt+T"_s);
    QTRY_COMPARE(world.press(combinationOf(Command::Toggle)), QList{Command::Capture});
    QCOMPARE(world.press(combinationOf(Command::Capture)), QList{Command::Toggle});
}

void TestUsersKeys::doubleShiftCanBeAnything()
{
    World world;
    QCOMPARE(world.keys->key(Command::SavePrompt).state, State::NoAccess);
    world.keys->setShiftHeard(true);
    QCOMPARE(world.keys->key(Command::SavePrompt).state, State::Works);
    QVERIFY(world.keys->isDoubleShiftWanted());
    world.replace(u"save-prompt=Super+Alt+Q"_s);
    QTRY_VERIFY(!world.keys->isDoubleShiftWanted());
    QCOMPARE(world.press(kSuperAltQ), QList{Command::SavePrompt});
    QVERIFY(QFile::remove(world.path));
    QTRY_VERIFY(world.keys->isDoubleShiftWanted());
    QVERIFY(world.press(kSuperAltQ).isEmpty());
}

void TestUsersKeys::lettersFollowTheLayout()
{
    World world(u"toggle=Super+Alt+A"_s);
    QVERIFY(world.press(kSuperAltQ).isEmpty());
    world.keyboard.setLayout(kFrench);
    QCOMPARE(world.press(kSuperAltQ), QList{Command::Toggle});
    QCOMPARE(world.written(Command::Toggle), u"Super+Alt+A"_s);
    // What the user did not change stays where it was.
    QCOMPARE(world.press(combinationOf(Command::Capture)), QList{Command::Capture});
}

QTEST_GUILESS_MAIN(TestUsersKeys)

#include "tst_userskeys.moc"
