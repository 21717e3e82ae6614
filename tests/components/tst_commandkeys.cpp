// SPDX-License-Identifier: MIT
#include "../files.h"
#include "components/commandkeys.h"
#include "input/globalkeys.h"
#include "platform/memory/memorykeyboard.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;
using namespace vesk::hotkeytable;

/// What the views say of the keys that work everywhere.
class TestCommandKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuTellsWhatWorks_data();
    void menuTellsWhatWorks();
};

void TestCommandKeys::menuTellsWhatWorks_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QList<quint32>>("taken");
    QTest::addColumn<QStringList>("holders");
    QTest::addColumn<QString>("newNote");
    QTest::addColumn<QString>("takenTitle");
    using Ids = QList<quint32>;
    const QString newNote = u"New Note (Ctrl+Alt+Super+N)"_s;
    const QString taken = u"New Note (Ctrl+Alt+Super+N, taken)"_s;
    QTest::newRow("all works") << QString() << Ids() << QStringList() << newNote << QString();
    QTest::newRow("own") << u"write=Super+Left"_s << Ids() << QStringList() << u"New Note (Super+Left)"_s
                         << QString();
    QTest::newRow("off") << u"write=none"_s << Ids{kWrite.id} << QStringList() << u"New Note"_s << QString();
    QTest::newRow("one, by one") << QString() << Ids{kWrite.id} << QStringList{u"Openbox"_s} << taken
                                 << u"1 Key(s) Taken by Openbox…"_s;
    QTest::newRow("two, by nobody knows whom")
        << QString() << Ids{kWrite.id, kOpen.id} << QStringList() << taken << u"2 Key(s) Taken…"_s;
    QTest::newRow("two, by one of two")
        << QString() << Ids{kAppend.id, kOpen.id} << QStringList{u"Openbox"_s, u"other"_s} << newNote
        << u"2 Key(s) Taken…"_s;
}

void TestCommandKeys::menuTellsWhatWorks()
{
    QFETCH(const QString, file);
    QFETCH(const QList<quint32>, taken);
    QFETCH(const QStringList, holders);
    const QTemporaryDir folder;
    const QString written = folder.filePath(u"Keys.conf"_s);
    QVERIFY(writeFile(written, file.toUtf8()));
    MemoryHotKeys keyboard;
    for (const quint32 id : taken)
        keyboard.setTaken(kAll.at(id - 1).combination);
    keyboard.setHolders(holders);
    GlobalKeys keys(keyboard, written);
    const CommandKeys shown(&keys);
    keys.start();
    QTEST(shown.newNoteTitle(), "newNote");
    QTEST(shown.takenTitle(), "takenTitle");
}

QTEST_GUILESS_MAIN(TestCommandKeys)

#include "tst_commandkeys.moc"
