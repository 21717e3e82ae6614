// SPDX-License-Identifier: MIT
#include "soak/soakuser.h"

#include "../components/shownitems.h"
#include "editor/notetextview.h"
#include "notes/markup.h"
#include "soak/soakworld.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

using Field = PanelModel::Field;

namespace {

/// Texts that a user may have selected somewhere.
const QStringList kSelections{u"A line"_s,
                              u"Two\nlines"_s,
                              u"- one\n- two\n\n- three"_s,
                              u"☐ open\n☑ done"_s,
                              u"# Heading\n**bold** *and*"_s,
                              u"Grüße, 漢字 😀"_s,
                              u"שלום עולם"_s,
                              u"<b>no</b> & markup"_s,
                              u"word "_s.repeated(40) + u"end"_s,
                              QString(u'\xd800') + u"lone"_s};

/// The card that an item belongs to; null if there is none.
RecordId cardOf(const QQuickItem *item)
{
    while (item && !item->property("cardId").isValid())
        item = item->parentItem();
    return item ? RecordId::fromString(item->property("cardId").toString()) : RecordId();
}

/// The window that the user's keys go to; null if it is another program's.
QQuickWindow *focusWindow()
{
    auto *window = qobject_cast<QQuickWindow *>(QGuiApplication::focusWindow());
    return window && window->isVisible() ? window : nullptr;
}

/// The maximum number of letters that a deleting key may remove: a character of several, and a word.
constexpr qsizetype kSign = 8;
constexpr qsizetype kWord = 40;

bool isMenuOpen()
{
    return focusWindow() && !shownItems(*focusWindow(), [](const QQuickItem &item) {
                                 return isOfType(item, "MenuRow");
                             }).isEmpty();
}

} // namespace

const std::array<SoakUser::Action, 10> SoakUser::kActions{{
    {"press", 40, &SoakUser::press},
    {"type", 16, &SoakUser::type},
    {"compose", 2, &SoakUser::compose},
    {"click", 24, &SoakUser::click},
    {"capture", 8, &SoakUser::capture},
    {"add to checklist", 3, &SoakUser::addToChecklist},
    {"save prompt", 4, &SoakUser::savePrompt},
    {"hot key", 8, &SoakUser::useHotKey},
    {"time", 6, &SoakUser::passTime},
    {"desktop", 3, &SoakUser::changeDesktop},
}};

Ledger::Effect SoakUser::act(SoakWorld &world, const Ledger::Entries &entries)
{
    m_world = &world;
    m_entries = &entries;
    m_effect = {};
    const int total = std::accumulate(kActions.begin(), kActions.end(), 0,
                                      [](int sum, const Action &each) { return sum + each.weight; });
    int left = pick(total);
    const auto *action =
        std::ranges::find_if(kActions, [&](const Action &each) { return (left -= each.weight) < 0; });
    m_done = QString::fromLatin1(action->name);
    const NoteTextView *editor = world.panel.editor()->textView();
    m_openText.begin(editor && editor->target() ? editor->target()->property("selectedText").toString()
                                                : QString());
    rememberOpenText();
    (this->*action->run)();
    rememberOpenText();
    return std::exchange(m_effect, {});
}

void SoakUser::rememberOpenText()
{
    const auto &id = m_world->panel.openNote()->id();
    const Note *note = id ? m_world->store.findNote(*id) : nullptr;
    if (note)
        m_openText.remember(*id, note->text());
}

bool SoakUser::isInPanel() const
{
    return focusWindow() == &m_world->panelWindow.window();
}

std::optional<RecordId> SoakUser::newest(auto isWanted) const
{
    std::optional<RecordId> found;
    const Ledger::Entries &all = *m_entries;
    for (auto it = all.begin(); it != all.end(); ++it) {
        // Identity decides between two with the same date.
        if (isWanted(*it) && (!found || it->updatedAt > all.value(*found).updatedAt))
            found = it.key();
    }
    return found;
}

/// The draft in the composer or in the quick-note box becomes a record.
void SoakUser::expectDraft(bool isSure)
{
    PanelModel &panel = m_world->panel;
    QString text;
    if (!isInPanel()) {
        // A key pressed before the box was closed may arrive while it fades out.
        text = focusWindow() == m_world->box.window() ? m_world->box.model().body() : QString();
        isSure = isSure && m_world->box.isShowing() && !m_world->box.model().isChecklist();
    } else if (panel.keyboard()->activeField() == Field::Composer) {
        m_effect.isPrompt = panel.tab() == PanelModel::Tab::Prompts;
        text = markup::trimmed(panel.draft());
        if (!m_effect.isPrompt)
            text = markup::expandMarkup(text);
    }
    if (!text.isEmpty())
        m_effect.added = markup::wellFormed(text);
    m_effect.isAddedForSure = isSure && !isMenuOpen() && !panel.guide()->isShown();
}

/// Any key or click may affect the selected card, and a menu all done prompts.
void SoakUser::expectAnything()
{
    if (const auto &selected = m_world->panel.selection()->selected())
        m_effect.mayTouch.insert(*selected);
    // A button in a card keeps the focus while another card is selected.
    if (focusWindow())
        m_effect.mayTouch.insert(cardOf(focusWindow()->activeFocusItem()));
    // Return in the search field takes the first card.
    PanelModel &panel = m_world->panel;
    const SectionedListModel &list = panel.tab() == PanelModel::Tab::Prompts
                                         ? static_cast<SectionedListModel &>(*panel.prompts())
                                         : *panel.notes();
    if (list.visibleCount() > 0 && panel.keyboard()->activeField() == Field::Search)
        m_effect.mayTouch.insert(list.visibleAt(0));
    m_effect.mayClearDone = m_effect.mayClearDone || isMenuOpen();
}

void SoakUser::press()
{
    static const QStringList kStrokes =
        u"Down,Down,Up,Return,Return,Ctrl+Return,Shift+Return,Enter,Esc,Esc,Ctrl+N,Ctrl+F,Backspace,"
        "Ctrl+Backspace,Ctrl+Backspace,Del,Tab,Shift+Backtab,Space,Ctrl+Home,Ctrl+End,Ctrl+Shift+Left,Right,"
        "Ctrl+A,Ctrl+C,Ctrl+X,Ctrl+V,Ctrl+Z,Ctrl+Shift+Z,Ctrl+B,PgDown,Menu"_s.split(u',');
    const QString &name = oneOf(kStrokes);
    note(name);
    const QKeyCombination stroke = QKeySequence(name)[0];
    if (!focusWindow())
        return;
    PanelModel &panel = m_world->panel;
    const PanelKeyboard &keyboard = *panel.keyboard();
    OpenText::Reach &reach = m_openText.reach();
    reach.goesBack = stroke.key() == Qt::Key_Z || isMenuOpen();
    if (name == u"Ctrl+V" || isMenuOpen())
        reach.insertions = m_world->pasteTexts();
    if (stroke.key() == Qt::Key_Backspace || stroke.key() == Qt::Key_Delete)
        reach.removal = stroke.keyboardModifiers() == Qt::NoModifier ? kSign : kWord;
    if (stroke.key() == Qt::Key_Return || stroke.key() == Qt::Key_Enter)
        expectDraft(stroke.keyboardModifiers() == Qt::NoModifier);
    const std::optional<RecordId> selected = panel.selection()->selected();
    if (isInPanel() && name == u"Ctrl+Backspace" && selected && !keyboard.isInField()
        && !panel.openNote()->id() && !isMenuOpen() && !panel.guide()->isShown()) {
        m_effect.removed = selected;
    } else {
        expectAnything();
    }
    QTest::keyClick(focusWindow(), stroke.key(), stroke.keyboardModifiers());
}

void SoakUser::type()
{
    static const QStringList kWords{u"line"_s, u"two"_s,   u"[] milk"_s, u"- x"_s,
                                    u"# h"_s,  u"**b**"_s, u"  "_s,      u"o"_s};
    const QString &word = oneOf(kWords);
    note(word);
    m_openText.reach().insertions = {word};
    for (const QChar letter : word) {
        // If a button has the focus, a space presses it.
        expectAnything();
        if (focusWindow())
            QTest::keyClick(focusWindow(), letter.toLatin1());
        rememberOpenText();
    }
}

void SoakUser::compose()
{
    if (!focusWindow() || !focusWindow()->focusObject())
        return;
    QInputMethodEvent composing(u"かな"_s, {});
    QCoreApplication::sendEvent(focusWindow()->focusObject(), &composing);
    QInputMethodEvent committed;
    static const QStringList kTexts{u"漢字"_s, u"é"_s, u"😀"_s, QString(), QString(u'\xdc00')};
    committed.setCommitString(oneOf(kTexts));
    m_openText.reach().insertions = {markup::wellFormed(committed.commitString())};
    if (focusWindow() && focusWindow()->focusObject())
        QCoreApplication::sendEvent(focusWindow()->focusObject(), &committed);
}

void SoakUser::click()
{
    QQuickWindow *window = focusWindow();
    if (!window)
        return;
    const QList<QQuickItem *> targets = shownItems(*window, [](const QQuickItem &item) {
        return item.metaObject()->indexOfSignal("clicked()") >= 0 || isOfType(item, "NoteCard")
               || isOfType(item, "NoteEditor") || isOfType(item, "Composer") || isOfType(item, "SearchField");
    });
    m_openText.reach() = {.insertions = m_world->pasteTexts(), .removal = 0, .goesBack = true, .moves = true};
    QPoint place(pick(window->width()), pick(window->height()));
    if (!targets.isEmpty() && pick(10) > 0) {
        const QQuickItem &target = *oneOf(targets);
        note(QString::fromLatin1(target.metaObject()->className()).section(u'_', 0, 0)
             + u" \"%1\""_s.arg(target.property("name").toString()));
        place = target.mapToScene(QPointF(pick(qRound(target.width()) + 1), target.height() / 2)).toPoint();
    }
    place = {std::clamp(place.x(), 0, window->width() - 1), std::clamp(place.y(), 0, window->height() - 1)};
    QTest::mouseMove(window, place);
    QCoreApplication::processEvents();
    for (const QQuickItem *item :
         shownItems(*window, [&](const QQuickItem &each) { return each.contains(each.mapFromScene(place)); }))
        m_effect.mayTouch.insert(cardOf(item));
    m_effect.mayClearDone = m_effect.mayClearDone || isMenuOpen();
    const Qt::MouseButton button = pick(8) == 0    ? Qt::RightButton
                                   : pick(12) == 0 ? Qt::MiddleButton
                                                   : Qt::LeftButton;
    if (pick(12) == 0) {
        QTest::mousePress(window, button, {}, place);
        const QPoint end(pick(window->width()), pick(window->height()));
        QTest::mouseMove(window, end);
        QTest::mouseRelease(window, button, {}, end);
    } else {
        QTest::mouseClick(window, button, {}, place);
    }
}

void SoakUser::capture()
{
    const bool hasSelection = pick(5) > 0;
    const QString text = hasSelection ? oneOf(kSelections) : QString();
    m_world->select(text);
    // The last command and the last copy must be long ago.
    m_world->clock.advance(10s);
    const Command command =
        oneOf(std::array{Command::Capture, Command::CaptureToLastNote, Command::CaptureChecklist});
    note(rowOf(command).words.toString() + u" of "_s + text.left(12));
    const std::optional<RecordId> last = newest([](const Ledger::Entry &each) { return !each.isPrompt; });
    const bool isKept =
        hasSelection && !m_world->box.isShowing() && m_world->accessibility.isProcessTrusted();
    const QString kept = markup::wellFormed(command == Command::CaptureChecklist ? markup::checklist(text)
                                                                                 : markup::trimmed(text));
    const bool isAppended = last && command == Command::CaptureToLastNote;
    if (isKept && isAppended) {
        m_effect.changed = last;
        m_effect.isRight = [kept](const QString &before, const QString &after) {
            return after == markup::appended(before, kept);
        };
    } else if (isKept && !(last && m_entries->value(*last).text == kept)) {
        m_effect.added = kept;
        m_effect.isCaptured = true;
    }
    m_world->hotKeys.press(combinationOf(command));
}

void SoakUser::addToChecklist()
{
    const QString &text = oneOf(kSelections);
    note(text.left(12));
    m_world->select(text);
    m_world->clock.advance(10s);
    if (m_world->accessibility.isProcessTrusted()) {
        m_effect.changed =
            newest([](const Ledger::Entry &each) { return !each.isPrompt && markup::progress(each.text); });
        if (m_effect.changed) {
            m_effect.isRight = [&text](const QString &before, const QString &after) {
                return after == markup::withChecklistItems(before, markup::wellFormed(text));
            };
        } else {
            m_effect.added = markup::wellFormed(markup::checklist(text));
            m_effect.isCaptured = true;
        }
    }
    m_world->hotKeys.press(combinationOf(Command::AddToChecklist));
}

void SoakUser::savePrompt()
{
    const QString &text = oneOf(kSelections);
    note(text.left(12));
    m_world->select(text);
    m_world->clock.advance(10s);
    const QString kept = markup::wellFormed(markup::trimmed(text));
    const std::optional<RecordId> last = newest([](const Ledger::Entry &each) { return each.isPrompt; });
    m_effect.isPrompt = true;
    if (m_world->accessibility.isProcessTrusted() && !(last && m_entries->value(*last).text == kept))
        m_effect.added = kept;
    m_effect.isCaptured = true;
    m_world->tapShiftTwice();
}

void SoakUser::useHotKey()
{
    const Command command = pick(3) == 0 ? Command::Write : Command::Toggle;
    note(rowOf(command).words.toString());
    m_world->hotKeys.press(combinationOf(command));
}

void SoakUser::passTime()
{
    static constexpr std::array<std::chrono::milliseconds, 8> kTimes{10ms, 500ms, 2s,  31s,
                                                                     5min, 1h,    11h, 26h};
    const auto time = oneOf(kTimes);
    note(u"%1 ms"_s.arg(time.count()));
    m_world->clock.advance(time);
    if (pick(10) == 0) {
        m_world->clock.setNow(m_world->clock.now() - 90min);
        m_world->clock.advance(31s);
    }
    if (pick(20) == 0)
        QTest::qWait(400);
}

void SoakUser::changeDesktop()
{
    static const QRectF kLarge(0, 0, 1600, 1000);
    static const QRectF kSmall(1600, 0, 800, 480);
    static const QList<Screen> kBoth{{.frame = kLarge, .visibleFrame = kLarge},
                                     {.frame = kSmall, .visibleFrame = kSmall}};
    const int kind = pick(9);
    note(QString::number(kind));
    if (kind == 0)
        m_world->screens.setScreens(kBoth);
    else if (kind == 1)
        m_world->screens.setScreens({oneOf(kBoth)});
    else if (kind == 2)
        m_world->screens.setMouseLocation(QPointF(pick(2400), pick(1000)));
    else if (kind == 3)
        m_world->accessibility.setTrusted(pick(4) > 0);
    else if (kind == 4)
        m_world->appearance.setReduceMotion(pick(3) > 0);
    else if (kind == 5)
        m_world->appearance.setTextFont({.family = {}, .scale = oneOf(std::array{1.0, 1.25, 2.0})});
    else if (kind == 6)
        m_world->application.resignActive();
    else if (kind == 7)
        m_world->application.setAway(pick(2) == 0);
    else if (focusWindow())
        focusWindow()->close();
}

} // namespace vesk
