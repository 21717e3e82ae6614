// SPDX-License-Identifier: MIT
#include "movableclock.h"
#include "selectionowner.h"
#include "x11test.h"

#include "platform/x11/selectionsender.h"
#include "platform/x11/selectiontransfer.h"

#include <QSignalSpy>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Transfers of a selection with a partner that stalls must end eventually. The clock is advanced; the
/// machine may take some real seconds as well.
class TestTransferEnds : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void readingEndsHoweverMuchItMayCost_data();
    void readingEndsHoweverMuchItMayCost();
    void silentOwnerIsAbandoned();
    void drippingOwnerIsAbandoned();
    void stalledReaderIsAbandoned();
    void slowReaderIsAbandoned();

private:
    /// Lets time pass and handles everything that this causes.
    void pass(std::chrono::milliseconds duration);
    /// Reads from `owner`, which can never complete, until the reading is given up.
    void giveUp(const SelectionOwner &owner);
    [[nodiscard]] qsizetype lingering() const
    {
        return m_connection->findChildren<SelectionTransfer *>().size();
    }
    [[nodiscard]] std::unique_ptr<SelectionSender> sendTo(const X11Connection &reader, qsizetype bytes);
};

void TestTransferEnds::pass(std::chrono::milliseconds duration)
{
    advanceSystemClock(duration);
    // Objects are deleted one iteration after their timer.
    settle();
    settle();
}

void TestTransferEnds::giveUp(const SelectionOwner &owner)
{
    const SelectionTransfer::Data data = QCoro::waitFor(SelectionTransfer::read(
        *m_connection, m_connection->atom("PRIMARY"), m_connection->atom("UTF8_STRING"), 1'000'000));
    QCOMPARE(data.outcome, SelectionTransfer::Outcome::Stalled);
    QVERIFY(owner.isSending());
    QCOMPARE(lingering(), 1);
}

void TestTransferEnds::readingEndsHoweverMuchItMayCost_data()
{
    QTest::addColumn<std::chrono::milliseconds>("total");
    QTest::addColumn<qsizetype>("taken");
    QTest::newRow("much time is allowed") << std::chrono::milliseconds{100s} << qsizetype{0};
    QTest::newRow("much data has come")
        << std::chrono::milliseconds{1s} << 100 * ReadingAllowance::kSlowestRate;
}

void TestTransferEnds::readingEndsHoweverMuchItMayCost()
{
    QFETCH(std::chrono::milliseconds, total);
    QFETCH(qsizetype, taken);
    const SelectionOwner owner(QByteArray(1'000'000, 'x'), SelectionOwner::Manner::StallsHalfway);
    ReadingAllowance allowance({.silence = 1h, .total = total, .bytes = 2 * taken + 1'000'000});
    allowance.take(taken);
    std::optional<SelectionTransfer::Data> data;
    const auto read = [&]() -> QCoro::Task<> {
        data = co_await SelectionTransfer::read(*m_connection, m_connection->atom("PRIMARY"),
                                                m_connection->atom("UTF8_STRING"), 1'000'000, allowance);
    };
    read();
    QTRY_VERIFY(owner.isSending());
    pass(20s);
    QVERIFY(!data);
    pass(12s);
    QVERIFY(data);
    QCOMPARE(data->outcome, SelectionTransfer::Outcome::Stalled);
    pass(12s);
    QCOMPARE(lingering(), 0);
}

void TestTransferEnds::silentOwnerIsAbandoned()
{
    const SelectionOwner owner(QByteArray(1'000'000, 'x'), SelectionOwner::Manner::StallsHalfway);
    giveUp(owner);
    pass(5s);
    QCOMPARE(lingering(), 1);
    pass(6s);
    QCOMPARE(lingering(), 0);
}

void TestTransferEnds::drippingOwnerIsAbandoned()
{
    const SelectionOwner owner("x", SelectionOwner::Manner::Drips);
    giveUp(owner);
    for (int i = 0; i < 4; ++i) {
        pass(5s);
        QCOMPARE(lingering(), 1);
    }
    for (int i = 0; i < 3; ++i)
        pass(5s);
    QCOMPARE(lingering(), 0);
}

std::unique_ptr<SelectionSender> TestTransferEnds::sendTo(const X11Connection &reader, qsizetype bytes)
{
    // Only now does the window certainly exist.
    static_cast<void>(reader.property(reader.root(), XCB_ATOM_WM_NAME));
    static_cast<void>(m_connection->addEvents(reader.window(), XCB_EVENT_MASK_PROPERTY_CHANGE));
    auto sender = std::make_unique<SelectionSender>(
        *m_connection,
        SelectionSender::Request{.requestor = reader.window(), .property = reader.atom("PIECE")},
        m_connection->atom("UTF8_STRING"), QByteArray(bytes, 'x'));
    m_connection->flush();
    settle();
    return sender;
}

void TestTransferEnds::stalledReaderIsAbandoned()
{
    const std::unique_ptr<X11Connection> reader = X11Connection::open().connection;
    // At the slowest rate this would take far longer.
    const auto sender = sendTo(*reader, 100 * SelectionSender::kPiece);
    pass(5s);
    QVERIFY(!sender->isFinished());
    pass(6s);
    QVERIFY(sender->isFinished());
}

/// Never silent for long, but far slower than any line.
void TestTransferEnds::slowReaderIsAbandoned()
{
    const std::unique_ptr<X11Connection> reader = X11Connection::open().connection;
    // 10 s, plus 3 s for each piece.
    const auto sender = sendTo(*reader, 10 * SelectionSender::kPiece);
    for (auto passed = 0s; passed < 45s; passed += 5s) {
        xcb_delete_property(reader->xcb(), reader->window(), reader->atom("PIECE"));
        static_cast<void>(reader->property(reader->root(), XCB_ATOM_WM_NAME));
        settle();
        QVERIFY2(passed >= 35s || !sender->isFinished(), qPrintable(QString::number(passed.count())));
        pass(5s);
    }
    QVERIFY(sender->isFinished());
}

DESKTOP_TEST_MAIN(TestTransferEnds)
#include "tst_transferends.moc"
