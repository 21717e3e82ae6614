// SPDX-License-Identifier: MIT
#include "editorfixture.h"
#include "plaineditor.h"

#include "components/theme.h"
#include "editor/notetextview.h"
#include "editor/textformats.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Keys at random in the real editor, beside the rules said plainly.
class RandomEditsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textAndLooksFollowTheRules_data();
    void textAndLooksFollowTheRules();

private:
    void act(int kind);
    [[nodiscard]] PlainEditor real() const;
    [[nodiscard]] int pick(int count) { return m_random.bounded(count); }
    /// The first paragraph whose formats are not what the whole text asks for; -1 for none.
    [[nodiscard]] int findWrongLooks() const;

    QRandomGenerator m_random;
    std::unique_ptr<EditorFixture> m_fixture;
    PlainEditor m_plain;
};

PlainEditor RandomEditsTest::real() const
{
    return {.text = m_fixture->text(), .anchor = m_fixture->anchor(), .caret = m_fixture->caret()};
}

void RandomEditsTest::act(int kind)
{
    static const QString kLetters = u"aab-*[x]#*é"_s;
    static const QStringList kPastes{u"- one\n[ ] two"_s, u"# head"_s, u"**bold** x"_s,
                                     u"☑ done\n"_s,       u"\n\n"_s,   u"•\u00a0x\u2028☐ y"_s,
                                     u"\ufffc\ufdd0"_s};
    static const QStringList kMarkers{u"☐ "_s, u"• "_s, u"# "_s};
    switch (kind) {
    case 0: { // Moved or selected by the mouse or anything else.
        m_plain.caret = pick(static_cast<int>(m_plain.text.size()) + 1);
        m_plain.anchor = pick(3) == 0 ? pick(static_cast<int>(m_plain.text.size()) + 1) : m_plain.caret;
        m_fixture->select(m_plain.anchor, m_plain.caret);
        break;
    }
    case 1:
        m_plain.typeReturn();
        m_fixture->type(u"\n"_s);
        break;
    case 2:
        m_plain.typeSpace();
        m_fixture->type(u" "_s);
        break;
    case 3: {
        const bool isBackwards = pick(2) == 0;
        m_plain.erase(isBackwards ? -1 : 1);
        m_fixture->type(isBackwards ? u"\b"_s : u"\x7f"_s);
        break;
    }
    case 4: {
        const QString &marker = kMarkers.at(pick(static_cast<int>(kMarkers.size())));
        m_plain.togglePrefix(marker);
        // The one for checklists has a key in the editor itself.
        if (marker == kMarkers.constFirst())
            m_fixture->press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        else
            m_fixture->controller.toggleLinePrefix(marker);
        break;
    }
    case 5: {
        const QString &pasted = kPastes.at(pick(static_cast<int>(kPastes.size())));
        m_plain.insert(pasted);
        m_fixture->pasteboard.setString(pasted);
        m_fixture->press(Qt::Key_V, Qt::ControlModifier);
        break;
    }
    case 6: {
        const qsizetype box = m_plain.lineStart(pick(static_cast<int>(m_plain.text.size()) + 1));
        if (box < m_plain.text.size() && (m_plain.text.at(box) == u'☐' || m_plain.text.at(box) == u'☑')) {
            m_plain.toggleBox(box);
            m_fixture->controller.textView()->toggleBox(static_cast<int>(box));
        }
        break;
    }
    default: {
        const QChar letter = kLetters.at(pick(static_cast<int>(kLetters.size())));
        m_plain.insert(letter);
        m_fixture->type(letter);
        break;
    }
    }
}

int RandomEditsTest::findWrongLooks() const
{
    const auto *theme =
        m_fixture->engine.singletonInstance<Theme *>(qmlTypeId("Vesk.Components", 1, 0, "Theme"));
    const TextFormats formats({.scale = 1,
                               .fontSize = 14,
                               .titleBoost = 4,
                               .titleWeight = QFont::DemiBold,
                               .secondary = theme->secondary(),
                               .tertiary = theme->tertiary(),
                               .quaternary = theme->quaternary(),
                               .accent = theme->accent()});
    bool isTitleTaken = false;
    qsizetype start = 0;
    for (QTextBlock block = m_fixture->document().begin(); block.isValid(); block = block.next()) {
        const qsizetype end = m_plain.lineEnd(start);
        const QStringView line = QStringView(m_plain.text).mid(start, end - start);
        const bool isTitle = !isTitleTaken && !line.trimmed().isEmpty();
        isTitleTaken = isTitleTaken || isTitle;
        if (block.position() != start || block.layout()->formats() != formats.ranges(line, isTitle)
            || block.blockFormat() != TextFormats::paragraph())
            return block.blockNumber();
        start = end + 1;
    }
    return start == m_plain.text.size() + 1 ? -1 : m_fixture->document().blockCount();
}

void RandomEditsTest::textAndLooksFollowTheRules_data()
{
    QTest::addColumn<quint32>("seed");
    // VESK_EDITOR_SEEDS=400 for the long form.
    const int seeds = std::max(12, qEnvironmentVariableIntValue("VESK_EDITOR_SEEDS"));
    for (int seed = 1; seed <= seeds; ++seed)
        QTest::addRow("seed %d", seed) << static_cast<quint32>(seed);
}

void RandomEditsTest::textAndLooksFollowTheRules()
{
    QFETCH(quint32, seed);
    m_random.seed(seed);
    m_fixture = std::make_unique<EditorFixture>(
        u"firstLineIsTitle: true; titleBoost: 4; titleWeight: Font.DemiBold"_s);
    m_plain = {.text = u"Title\n\n☐ one\n☑ two\n• three\nlast"_s};
    m_fixture->load(m_plain.text);
    const PlainEditor first = m_plain;

    QList<PlainEditor> before;
    QList<PlainEditor> after;
    for (int step = 0; step < 250; ++step) {
        const PlainEditor former = m_plain;
        act(pick(14));
        QCOMPARE(m_fixture->text(), m_plain.text);
        QVERIFY2(real() == m_plain, qPrintable(u"step %1"_s.arg(step)));
        QCOMPARE(findWrongLooks(), -1);
        if (m_plain.text != former.text) {
            before.append(former);
            after.append(m_plain);
        }
    }

    // Each step that is taken back leads to where some change began, and ends where all began.
    int steps = 0;
    while (m_fixture->controller.textView()->canUndo()) {
        m_fixture->press(Qt::Key_Z, Qt::ControlModifier);
        m_plain = real();
        QVERIFY(before.contains(m_plain));
        QCOMPARE(findWrongLooks(), -1);
        ++steps;
    }
    QCOMPARE(m_plain.text, first.text);
    for (; steps > 0; --steps) {
        m_fixture->press(Qt::Key_Y, Qt::ControlModifier);
        m_plain = real();
        QVERIFY(after.contains(m_plain));
    }
    QVERIFY(real() == after.constLast());
    QCOMPARE(findWrongLooks(), -1);
}

QTEST_MAIN(RandomEditsTest)
#include "tst_randomedits.moc"
