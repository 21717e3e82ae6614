// SPDX-License-Identifier: MIT
#include "selectionowner.h"
#include "x11test.h"

#include "platform/accessibility.h"
#include "platform/x11/primaryselection.h"
#include "platform/x11/selectiontransfer.h"

#include <QCoroTask>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Reading a selection from all sorts of owners.
class TestPrimarySelection : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void secretIsNotEvenRead_data();
    void secretIsNotEvenRead();
    void ownerThatChangesWhileItIsReadGivesNothing();
    void lateAnswerIsNotTakenForTheNext();
    void readingGivenUpLetsTheOwnerFinish();
    void drippingOwnerIsAbandoned();
    void longAnswerIsReadNoFurtherThanTheLimit_data();
    void longAnswerIsReadNoFurtherThanTheLimit();
};

void TestPrimarySelection::text_data()
{
    using Manner = SelectionOwner::Manner;
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<SelectionOwner::Manner>("manner");
    QTest::addColumn<bool>("isGiven");
    const QByteArray odd("a\0b\r\n\xe2\x80\xa8\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x92\xbb", 19);
    QTest::newRow("odd characters") << odd << Manner::Whole << true;
    QTest::newRow("empty") << QByteArray() << Manner::Whole << true;
    QTest::newRow("5 MB in one line") << QByteArray(5'000'000, 'x') << Manner::Incremental << true;
    QTest::newRow("stalls halfway") << QByteArray(500'000, 'x') << Manner::StallsHalfway << false;
    QTest::newRow("silent") << QByteArray("x") << Manner::Silent << false;
    QTest::newRow("no text") << QByteArray("x") << Manner::NoText << false;
}

void TestPrimarySelection::text()
{
    QFETCH(const QByteArray, text);
    QFETCH(const SelectionOwner::Manner, manner);
    QFETCH(const bool, isGiven);
    const SelectionOwner owner(text, manner);
    PrimarySelection primary(*m_connection);
    settle();
    const std::optional<QString> expected = isGiven ? std::optional(QString::fromUtf8(text)) : std::nullopt;
    QVERIFY(QCoro::waitFor(primary.text()) == expected);
}

void TestPrimarySelection::secretIsNotEvenRead_data()
{
    QTest::addColumn<SelectionOwner::Manner>("manner");
    QTest::newRow("says so") << SelectionOwner::Manner::Secret;
    QTest::newRow("does not say") << SelectionOwner::Manner::SilentSecret;
}

void TestPrimarySelection::secretIsNotEvenRead()
{
    QFETCH(const SelectionOwner::Manner, manner);
    const SelectionOwner owner("password", manner);
    PrimarySelection primary(*m_connection);
    settle();
    QVERIFY(!QCoro::waitFor(primary.text()));
    QCOMPARE(owner.readings(), 0);
}

/// The first owner says that its text is not secret, but the text is the next owner's.
void TestPrimarySelection::ownerThatChangesWhileItIsReadGivesNothing()
{
    const SelectionOwner owner("harmless", SelectionOwner::Manner::Replaced);
    PrimarySelection primary(*m_connection);
    settle();
    QVERIFY(!QCoro::waitFor(primary.text()));
    QCOMPARE(QCoro::waitFor(primary.text()), u"password"_s);
}

void TestPrimarySelection::lateAnswerIsNotTakenForTheNext()
{
    const xcb_atom_t target = m_connection->atom("UTF8_STRING");
    const auto read = [this, target] {
        return SelectionTransfer::read(*m_connection, XCB_ATOM_PRIMARY, target, kMaximumReadBytes);
    };
    {
        const SelectionOwner halfway(QByteArray(500'000, 'o'), SelectionOwner::Manner::StallsHalfway);
        QVERIFY(QCoro::waitFor(read()).outcome == SelectionTransfer::Outcome::Stalled);
    }
    const SelectionOwner owner("new", SelectionOwner::Manner::Whole);
    const SelectionTransfer::Data data = QCoro::waitFor(read());
    QVERIFY(data.outcome == SelectionTransfer::Outcome::Complete);
    QCOMPARE(data.bytes, "new"_qba);
}

void TestPrimarySelection::readingGivenUpLetsTheOwnerFinish()
{
    const SelectionOwner owner(QByteArray(1'000'000, 'x'), SelectionOwner::Manner::Incremental);
    const SelectionTransfer::Data data = QCoro::waitFor(SelectionTransfer::read(
        *m_connection, XCB_ATOM_PRIMARY, m_connection->atom("UTF8_STRING"), qsizetype{150'000}));
    QVERIFY(data.outcome == SelectionTransfer::Outcome::Cut);
    QVERIFY(owner.isSending());
    QTRY_VERIFY(!owner.isSending());
}

/// Each byte arrives in time, but there is no last one.
void TestPrimarySelection::drippingOwnerIsAbandoned()
{
    const SelectionOwner owner("x", SelectionOwner::Manner::Drips);
    PrimarySelection primary(*m_connection);
    QVERIFY(!QCoro::waitFor(primary.text()));
}

void TestPrimarySelection::longAnswerIsReadNoFurtherThanTheLimit_data()
{
    using Outcome = SelectionTransfer::Outcome;
    QTest::addColumn<qsizetype>("limit");
    QTest::addColumn<SelectionTransfer::Outcome>("outcome");
    QTest::newRow("as long as the limit") << qsizetype{3'000'000} << Outcome::Complete;
    QTest::newRow("one byte longer") << qsizetype{2'999'999} << Outcome::Cut;
    QTest::newRow("far longer") << qsizetype{1000} << Outcome::Cut;
}

void TestPrimarySelection::longAnswerIsReadNoFurtherThanTheLimit()
{
    QFETCH(const qsizetype, limit);
    const SelectionOwner owner(QByteArray(3'000'000, 'x'), SelectionOwner::Manner::Whole);
    const SelectionTransfer::Data data = QCoro::waitFor(SelectionTransfer::read(
        *m_connection, XCB_ATOM_PRIMARY, m_connection->atom("UTF8_STRING"), limit, std::chrono::seconds(10)));
    QTEST(data.outcome, "outcome");
    QVERIFY(data.bytes.size() >= limit);
    QVERIFY(data.bytes.size() <= limit + 4);
}

DESKTOP_TEST_MAIN(TestPrimarySelection)
#include "tst_primaryselection.moc"
