// SPDX-License-Identifier: MIT
#include "editorfixture.h"

#include "components/theme.h"
#include "editor/notetextview.h"
#include "editor/textformats.h"
#include "notes/linedirection.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// The editor's text and selection.
struct State
{
    QString text;
    qsizetype anchor = 0;
    qsizetype caret = 0;
    bool operator==(const State &) const = default;
};

} // namespace

/// Random keys and input methods in the real editor: checks the appearance of each line, and undoing
/// everything. The texts have both directions, and characters of more than one unit.
class RandomEditsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatsFollowAndEverythingIsUndone_data();
    void formatsFollowAndEverythingIsUndone();

private:
    void act(int kind);
    [[nodiscard]] State state() const;
    [[nodiscard]] int pick(qsizetype count) { return m_random.bounded(static_cast<int>(count)); }
    /// Never between the halves of a character.
    [[nodiscard]] int pickPosition()
    {
        const QString text = m_fixture->text();
        const int position = pick(text.size() + 1);
        const bool isInside = position > 0 && position < text.size() && text.at(position).isLowSurrogate();
        return isInside ? position - 1 : position;
    }
    /// The first paragraph whose formats differ from those that the whole text requires; -1 if there is none.
    [[nodiscard]] int findWrongLooks() const;

    QRandomGenerator m_random;
    std::unique_ptr<EditorFixture> m_fixture;
};

State RandomEditsTest::state() const
{
    return {.text = m_fixture->text(), .anchor = m_fixture->anchor(), .caret = m_fixture->caret()};
}

void RandomEditsTest::act(int kind)
{
    static const QStringList kLetters{u"a"_s,  u"b"_s,  u"-"_s,  u"*"_s,  u"["_s,     u"x"_s,
                                      u"]"_s,  u"#"_s,  u"é"_s,  u"1"_s,  u"ב"_s,     u"م"_s,
                                      u"😀"_s, u"😁"_s, u"👍"_s, u"🏽"_s, u"\u0301"_s};
    static const QStringList kCommits{u"👍🏽"_s, u"你好"_s, u"😁"_s, u"😀"_s,
                                      u"שלום"_s, u" "_s,    u"\n"_s, u"a 👩‍🚀"_s};
    static const QStringList kPastes{u"- one\n[ ] two"_s, u"# head"_s,  u"**bold** x"_s,
                                     u"☑ done\n"_s,       u"\n\n"_s,    u"•\u00a0x\u2028☐ y"_s,
                                     u"\ufffc\ufdd0"_s,   u"☐ חלב\n"_s, u"مرحبا a\n12"_s};
    static const QStringList kKeys{u"\n"_s, u" "_s, u"\b"_s, u"\x7f"_s};
    const QString text = m_fixture->text();
    switch (kind) {
    case 0: { // Moved or selected with the mouse or something else.
        const int caret = pickPosition();
        m_fixture->select(pick(3) == 0 ? pickPosition() : caret, caret);
        break;
    }
    case 1:
    case 2:
    case 3:
        m_fixture->type(kKeys.at(pick(kKeys.size())));
        break;
    case 4:
        // The command for checklists has a key in the editor itself.
        if (const int marker = pick(3); marker == 0)
            m_fixture->press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        else
            m_fixture->controller.toggleLinePrefix(marker == 1 ? u"• "_s : u"# "_s);
        break;
    case 5:
        m_fixture->pasteboard.setString(kPastes.at(pick(kPastes.size())));
        m_fixture->press(Qt::Key_V, Qt::ControlModifier);
        break;
    case 6:
        if (const qsizetype box = text.indexOf(u"\n☐"_s, pick(text.size() + 1)) + 1; box > 0)
            m_fixture->controller.textView()->toggleBox(static_cast<int>(box));
        break;
    case 7:
        if (pick(2) == 0)
            m_fixture->compose(u"ש"_s);
        m_fixture->commit(kCommits.at(pick(kCommits.size())));
        break;
    case 8: { // Even if it splits an emoji.
        const int before = std::min(pick(4), m_fixture->caret());
        const int after = std::min(pick(2), static_cast<int>(text.size()) - m_fixture->caret());
        m_fixture->replace(-before, before + after, pick(2) == 0 ? QString() : u"😂"_s);
        break;
    }
    case 9:
        m_fixture->press(pick(2) == 0 ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
        break;
    default:
        m_fixture->type(kLetters.at(pick(kLetters.size())));
        break;
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
    static const QRegularExpression kBreak(u"[\n\u2028\u2029]|$"_s);
    const QString text = m_fixture->text();
    bool isTitleTaken = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    qsizetype start = 0;
    for (QTextBlock block = m_fixture->document().begin(); block.isValid(); block = block.next()) {
        const qsizetype end = text.indexOf(kBreak, start);
        const QStringView line = QStringView(text).mid(start, end - start);
        const bool isTitle = !isTitleTaken && !line.trimmed().isEmpty();
        isTitleTaken = isTitleTaken || isTitle;
        direction = lineDirection(line).value_or(direction);
        if (block.position() != start || block.layout()->formats() != formats.ranges(line, isTitle)
            || block.blockFormat() != TextFormats::paragraph(direction))
            return block.blockNumber();
        start = end + 1;
    }
    return start == text.size() + 1 ? -1 : m_fixture->document().blockCount();
}

void RandomEditsTest::formatsFollowAndEverythingIsUndone_data()
{
    QTest::addColumn<quint32>("seed");
    // VESK_EDITOR_SEEDS=400 requests a longer run.
    const int seeds = std::max(12, qEnvironmentVariableIntValue("VESK_EDITOR_SEEDS"));
    for (int seed = 1; seed <= seeds; ++seed)
        QTest::addRow("seed %d", seed) << static_cast<quint32>(seed);
}

void RandomEditsTest::formatsFollowAndEverythingIsUndone()
{
    QFETCH(quint32, seed);
    m_random.seed(seed);
    m_fixture = std::make_unique<EditorFixture>(
        u"firstLineIsTitle: true; titleBoost: 4; titleWeight: Font.DemiBold"_s);
    const QString first = u"Title\n\n☐ one\n☑ two 😀\n• three\n☐ חלב 😁\nlast"_s;
    m_fixture->load(first);

    QList<State> before;
    QList<State> after;
    for (int step = 0; step < 250; ++step) {
        const State former = state();
        act(pick(18));
        QCOMPARE(findWrongLooks(), -1);
        QVERIFY(m_fixture->text().isValidUtf16());
        if (m_fixture->text() != former.text) {
            before.append(former);
            after.append(state());
        }
    }

    while (m_fixture->controller.textView()->canRedo())
        m_fixture->press(Qt::Key_Y, Qt::ControlModifier);
    const QString last = m_fixture->text();

    // Each undo leads back to a state from which a change began, and finally to the first.
    int steps = 0;
    while (m_fixture->controller.textView()->canUndo()) {
        m_fixture->press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY2(before.contains(state()), qPrintable(state().text));
        QCOMPARE(findWrongLooks(), -1);
        QVERIFY(m_fixture->text().isValidUtf16());
        ++steps;
    }
    QCOMPARE(m_fixture->text(), first);
    for (; steps > 0; --steps) {
        m_fixture->press(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(after.contains(state()));
    }
    QCOMPARE(m_fixture->text(), last);
    QCOMPARE(findWrongLooks(), -1);
}

QTEST_MAIN(RandomEditsTest)
#include "tst_randomedits.moc"
