// SPDX-License-Identifier: MIT
#include "capture/pasteboardwatcher.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorypasteboard.h"

#include <QCoroTask>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// What counts as copied a moment ago.
class TestPasteboardWatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ageOfACopy_data();
    void ageOfACopy();
    void contentBeforeTheStart();
    void contentNewerThanTheLastLook();
    void whiteSpaceAndPictures();
    void ownContent();
    void restoredContentKeepsItsStanding();
    void takenOverContentKeepsItsStanding_data();
    void takenOverContentKeepsItsStanding();
    void ownContentThatIsTakenOverStaysOwn();
    void reportedChangesNeedNoWakeUps();

private:
    [[nodiscard]] QString recent() const
    {
        return QCoro::waitFor(m_watcher->recentCopy(8s)).value_or(u"-"_s);
    }

    std::unique_ptr<MemoryClock> m_clock;
    std::unique_ptr<MemoryPasteboard> m_pasteboard;
    std::unique_ptr<PasteboardWatcher> m_watcher;
};

void TestPasteboardWatcher::init()
{
    m_clock = std::make_unique<MemoryClock>();
    m_pasteboard = std::make_unique<MemoryPasteboard>();
    m_pasteboard->setString(u"old"_s);
    m_watcher = std::make_unique<PasteboardWatcher>(*m_pasteboard, *m_clock);
}

void TestPasteboardWatcher::cleanup()
{
    m_watcher.reset();
    // Let sleeping coroutines notice that it is over.
    m_clock->advance(1s);
    QCOMPARE(m_clock->sleeperCount(), 0);
}

void TestPasteboardWatcher::ageOfACopy_data()
{
    QTest::addColumn<bool>("isReported");
    QTest::newRow("changes are reported") << true;
    QTest::newRow("changes are looked for") << false;
}

void TestPasteboardWatcher::ageOfACopy()
{
    QFETCH(const bool, isReported);
    m_pasteboard->setReportsChanges(isReported);
    m_watcher->start();
    m_watcher->start();
    m_clock->advance(1400ms);
    m_pasteboard->setString(u" word\n"_s);
    // Noticed now, or at the next look in 100 ms.
    const auto seenAfter = isReported ? 0ms : 100ms;
    m_clock->advance(5s);
    // The age must not depend on the system's date.
    m_clock->setNow(m_clock->now() + 1h);
    QCOMPARE(recent(), u"word"_s);
    m_clock->advance(3s + seenAfter);
    QCOMPARE(recent(), u"word"_s);
    m_clock->advance(1ms);
    QCOMPARE(recent(), u"-"_s);
}

void TestPasteboardWatcher::contentBeforeTheStart()
{
    m_watcher->start();
    QCOMPARE(recent(), u"-"_s);
}

void TestPasteboardWatcher::contentNewerThanTheLastLook()
{
    m_pasteboard->setReportsChanges(false);
    m_watcher->start();
    m_pasteboard->setString(u"word"_s);
    m_clock->advance(400ms);
    QCOMPARE(recent(), u"word"_s);
}

void TestPasteboardWatcher::whiteSpaceAndPictures()
{
    m_watcher->start();
    m_pasteboard->setString(u" \n\u2029\u00a0"_s);
    QCOMPARE(recent(), u"-"_s);
    const PasteboardData picture{.type = u"image/png"_s, .data = "png"};
    m_pasteboard->writeObjects({PasteboardItem{picture}});
    QCOMPARE(recent(), u"-"_s);
}

void TestPasteboardWatcher::ownContent()
{
    m_watcher->start();
    m_pasteboard->setString(u"pasted by Vesk"_s);
    m_watcher->markOwn();
    QCOMPARE(recent(), u"-"_s);
    m_pasteboard->setString(u"copied by the user"_s);
    QCOMPARE(recent(), u"copied by the user"_s);
}

void TestPasteboardWatcher::restoredContentKeepsItsStanding()
{
    m_watcher->start();
    m_pasteboard->setString(u"word"_s);
    m_clock->advance(6s);
    const PasteboardWatcher::Standing standing = m_watcher->standing();
    m_pasteboard->setString(u"copied for Vesk"_s);
    m_pasteboard->setString(u"word"_s);
    m_watcher->markRestored(standing);
    m_clock->advance(2s);
    QCOMPARE(recent(), u"word"_s);
    m_clock->advance(1ms);
    QCOMPARE(recent(), u"-"_s);
}

void TestPasteboardWatcher::takenOverContentKeepsItsStanding_data()
{
    using Claim = Pasteboard::Claim;
    QTest::addColumn<QString>("text");
    QTest::addColumn<Pasteboard::Claim>("claim");
    QTest::addColumn<bool>("isOwnerGone");
    QTest::addColumn<QString>("expected");
    QTest::newRow("by a manager after the owner quit") << u"word"_s << Claim::AfterLoss << true << u"-"_s;
    QTest::newRow("by a manager before the owner quits") << u"word"_s << Claim::Aside << false << u"-"_s;
    QTest::newRow("without white space at its end") << u"word"_s << Claim::AfterLoss << false << u"-"_s;
    QTest::newRow("another text, chosen in a manager") << u"other"_s << Claim::Aside << false << u"other"_s;
    QTest::newRow("another text, right after an owner quit")
        << u"other"_s << Claim::AfterLoss << true << u"other"_s;
    QTest::newRow("the same text, copied again") << u"word"_s << Claim::Ordinary << false << u"word"_s;
}

void TestPasteboardWatcher::takenOverContentKeepsItsStanding()
{
    QFETCH(const QString, text);
    QFETCH(const Pasteboard::Claim, claim);
    QFETCH(const bool, isOwnerGone);
    m_watcher->start();
    m_pasteboard->setString(u"word\n"_s);
    m_clock->advance(7s);
    if (isOwnerGone)
        m_pasteboard->clearContents();
    m_pasteboard->setOrigin({.processIdentifier = {}, .delay = {}, .claim = claim});
    m_pasteboard->setString(text);
    // The copy itself is still fresh, whoever owns it now.
    QCOMPARE(recent(), text);
    m_clock->advance(2s);
    QTEST(recent(), "expected");
    // A manager may claim it repeatedly.
    m_pasteboard->setOrigin({.processIdentifier = {}, .delay = {}, .claim = Pasteboard::Claim::Aside});
    m_clock->advance(7s);
    m_pasteboard->setString(text);
    QCOMPARE(recent(), u"-"_s);
}

void TestPasteboardWatcher::ownContentThatIsTakenOverStaysOwn()
{
    m_watcher->start();
    m_pasteboard->setString(u"pasted by Vesk"_s);
    m_watcher->markOwn();
    m_pasteboard->setOrigin({.processIdentifier = {}, .delay = {}, .claim = Pasteboard::Claim::Aside});
    m_pasteboard->setString(u"pasted by Vesk"_s);
    QCOMPARE(recent(), u"-"_s);
    QVERIFY(m_watcher->standing().isOwn);
}

void TestPasteboardWatcher::reportedChangesNeedNoWakeUps()
{
    m_watcher->start();
    m_pasteboard->setString(u"word"_s);
    QCOMPARE(m_clock->sleeperCount(), 0);
}

QTEST_GUILESS_MAIN(TestPasteboardWatcher)

#include "tst_pasteboardwatcher.moc"
