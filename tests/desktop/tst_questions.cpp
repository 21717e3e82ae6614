// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "virtualdesktop/texteditor.h"

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

const auto kQuestion = u"Vesk: Let Vesk read what you select?"_s;
const auto kLine = u"Water the lemon tree"_s;

} // namespace

/// Vesk's questions to a user who has just installed it.
class TestQuestions : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() {}
    void firstNoteIsWrittenWhole();
    void standsWholeAboveVesksWindows_data();
    void standsWholeAboveVesksWindows();

private:
    /// Starts Vesk, without any permissions yet, behind an editor.
    void begin(const VirtualDesktop::Lacks &lacks = {}, const QString &scale = u"1"_s);
    /// Waits until the first window is above the second; returns whether it is.
    [[nodiscard]] bool waitAbove(const QString &upper, const QString &lower);
    void tap(const Keys &keys) { m_desktop->keyboard().tap(keys, kFinger); }

    std::unique_ptr<TextEditor> m_editor;

private Q_SLOTS:
    void cleanup()
    {
        m_editor.reset();
        VeskTest::cleanup();
    }
};

void TestQuestions::begin(const VirtualDesktop::Lacks &lacks, const QString &scale)
{
    startDesktop(lacks);
    if (!m_desktop)
        return;
    m_desktop->setVariable(u"QT_SCALE_FACTOR"_s, scale);
    QVERIFY(m_desktop->prepareUser());
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"access"_s, u"deny"_s}));
    QVERIFY(startVesk());
    m_editor = TextEditor::open(*m_desktop, {kLine});
    VERIFY_ON(*m_desktop, m_editor && m_editor->text() && m_editor->deselect());
}

bool TestQuestions::waitAbove(const QString &upper, const QString &lower)
{
    return m_desktop->display().waitUntil(kBound, [&] {
        const std::optional<Window> above = m_desktop->windows().findViewable(upper);
        const std::optional<Window> below = m_desktop->windows().findViewable(lower);
        const QList<xcb_window_t> stack = m_desktop->windows().stack();
        return above && below && stack.indexOf(above->id) > stack.indexOf(below->id);
    });
}

/// The box keeps the focus, and the question waits for it.
void TestQuestions::firstNoteIsWrittenWhole()
{
    begin();
    VERIFY_ON(*m_desktop, m_editor);
    capture();
    const QString note = u"Call Ada about the lease of the flat"_s;
    m_desktop->keyboard().type(note);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kQuickNote, kBound));
    QTest::qWait(500);
    VERIFY_ON(*m_desktop, !m_desktop->windows().findViewable(kQuestion));
    tap({XK_Return});
    VERIFY_ON(*m_desktop, waitNotes({note}));
    // A user who continues working is not disturbed until they pause.
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(m_editor->window(), kBound));
    m_desktop->keyboard().type(u"ripe "_s);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuestion, kBound));
    // Superfluous typing answers nothing.
    for (const xcb_keysym_t key : {XK_space, XK_Return, XK_Escape, XK_Tab, XK_space})
        tap({key});
    QTest::qWait(1000);
    VERIFY_ON(*m_desktop, m_desktop->windows().findViewable(kQuestion));
    tap({XK_Tab});
    tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kQuestion, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    QCOMPARE(m_editor->text(), u"ripe "_s + kLine + u'\n');
}

void TestQuestions::standsWholeAboveVesksWindows_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QString>("scale");
    QTest::newRow("common") << QSize(1600, 1000) << u"1"_s;
    QTest::newRow("small") << QSize(1024, 768) << u"1"_s;
    QTest::newRow("small, scale 2") << QSize(1024, 768) << u"2"_s;
}

void TestQuestions::standsWholeAboveVesksWindows()
{
    QFETCH(const QSize, screen);
    QFETCH(const QString, scale);
    begin({.screen = screen}, scale);
    VERIFY_ON(*m_desktop, m_editor);
    press({XK_Shift_L, XK_c});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuestion, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(u"Vesk needs Accessibility access"_s, kBound));
    const QRect place = m_desktop->windows().findViewable(kQuestion)->geometry;
    QVERIFY2(
        QRect(QPoint(), screen).contains(place.adjusted(0, -20, 0, 0)),
        qPrintable(
            u"%1 x %2 at %3, %4"_s.arg(place.width()).arg(place.height()).arg(place.x()).arg(place.y())));
    togglePanel();
    VERIFY_ON(*m_desktop, waitAbove(kQuestion, kPanel));
    QTest::qWait(int(kCaptureGate.count()));
    // The box replaces the question, which returns when the box closes.
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kQuestion, kBound));
    m_desktop->keyboard().type(u"tea"_s);
    tap({XK_Escape});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuestion, kBound));
    VERIFY_ON(*m_desktop, waitAbove(kQuestion, kPanel));
    // A picture for whoever runs this test.
    const QString picture = qEnvironmentVariable("VESK_PICTURES");
    if (!picture.isEmpty())
        m_desktop->display().screenshot().save(picture + u'/' + QString::fromLatin1(QTest::currentDataTag())
                                               + u".png"_s);
    QTest::qWait(1000);
    tap({XK_Escape});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kQuestion, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    QCOMPARE(m_editor->text(), kLine + u'\n');
}

DESKTOP_TEST_MAIN(TestQuestions)
#include "tst_questions.moc"
