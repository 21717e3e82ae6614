// SPDX-License-Identifier: MIT
#include "guide/guidetopics.h"

#include "commands/command.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Topic
{
    const char *symbol;
    const char *title;
    /// The command whose keys are shown; nullopt if the topic is about keys in Vesk's own windows.
    std::optional<Command> command = {};
    /// The keys in Vesk's own windows, separated by spaces.
    QStringView keys = {};
    const char *text;
    bool showsAccess = false;
};

// All combinations within a text are for Vesk's own windows. The checklist combination has no exception here,
// because no file manager of this desktop uses it.
constexpr std::array kTopics{
    Topic{.symbol = "keyboard",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Open Vesk anywhere"),
          .command = Command::Toggle,
          .text =
              QT_TRANSLATE_NOOP("vesk::GuideTopics", "Press it in any app to open or hide Vesk. Escape also "
                                                     "hides it, and so does clicking another app.")},
    Topic{.symbol = "square.and.pencil",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Write a new note"),
          .command = Command::Write,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Opens Vesk with the cursor in \u201CWrite a note\u2026\u201D. Return "
                                    "saves it, Shift-Return starts a new line.")},
    Topic{.symbol = "character.cursor.ibeam",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Save selected text"),
          .command = Command::Capture,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Select text in a browser, ChatGPT, Claude, a terminal, anywhere, and "
                                    "press it. It becomes a note that remembers where it came from. With "
                                    "nothing selected, a quick note box opens."),
          .showsAccess = true},
    Topic{.symbol = "bubble.left.and.text.bubble.right",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Prompts for your AI chats"),
          .command = Command::SavePrompt,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Select text and tap Shift twice to save it as a prompt, or write "
                                    "follow-up prompts in the Prompts tab. Copy or paste them into the chat "
                                    "and tick them off.")},
    Topic{.symbol = "text.append",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Add to your last note"),
          .command = Command::CaptureToLastNote,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Adds the selection to the bottom of the note you changed last. A note "
                                    "that ends in a checklist gets new checkboxes.")},
    Topic{.symbol = "checklist",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Make a checklist"),
          .command = Command::CaptureChecklist,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Each selected line becomes a checkbox. With nothing selected, a box "
                                    "opens on the first checkbox: Return adds the next item, \u2318\u21A9 "
                                    "saves.")},
    Topic{.symbol = "text.badge.plus",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Add to your checklist"),
          .command = Command::AddToChecklist,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Each selected line becomes a new checkbox in the checklist you changed "
                                    "last, even if you edited other notes since.")},
    Topic{.symbol = "list.bullet",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Checkboxes and lists"),
          .keys = u"[ ] \u2423",
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Type [ ] and a space for a checkbox, - and a space for a bullet, # and "
                                    "a space for a heading. Tick boxes right on the card.")},
    Topic{.symbol = "arrow.up.and.down",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Keyboard in the panel"),
          .keys = u"\u2191 \u2193",
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Move between notes. Return opens one, \u2318\u21A9 pastes it into the "
                                    "app you came from, \u2318\u232B deletes it, ⌘F searches.")},
};

KeyLabels::Place placeOf(const Topic &topic)
{
    return topic.command ? KeyLabels::Global : KeyLabels::Window;
}

} // namespace

void GuideTopics::setCommandKeys(CommandKeys *keys)
{
    if (m_keys == keys)
        return;
    if (m_keys)
        m_keys->disconnect(this);
    m_keys = keys;
    const auto renew = [this] { Q_EMIT dataChanged(index(0), index(rowCount() - 1)); };
    if (keys)
        connect(keys, &CommandKeys::changed, this, renew);
    renew();
    Q_EMIT commandKeysChanged();
}

int GuideTopics::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kTopics.size());
}

QVariant GuideTopics::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto place = static_cast<size_t>(index.row());
    const Topic &topic = kTopics.at(place);
    switch (role) {
    case SymbolRole:
        return QString::fromLatin1(topic.symbol);
    case TitleRole:
        return tr(topic.title);
    case KeysRole:
        return keysOf(place);
    case PlaceRole:
        return placeOf(topic);
    case TextRole:
        return KeyLabels::spelt(textOf(place), KeyLabels::Window);
    case SpokenRole:
        return spoken(place);
    case ShowsAccessRole:
        return topic.showsAccess;
    case NoticeRole:
        return noticeOf(place);
    case IsTakenRole:
        return topic.command && m_keys && m_keys->isTaken(*topic.command);
    default:
        return {};
    }
}

QStringList GuideTopics::keysOf(size_t place) const
{
    const Topic &topic = kTopics.at(place);
    if (topic.command)
        return m_keys ? m_keys->glyphs(*topic.command) : QStringList();
    return topic.keys.toString().split(u' ', Qt::SkipEmptyParts);
}

QString GuideTopics::textOf(size_t place) const
{
    const Topic &topic = kTopics.at(place);
    if (topic.command != Command::SavePrompt || !m_keys || m_keys->isPromptTapped())
        return tr(topic.text);
    const QString keys = m_keys->spelt(*topic.command);
    if (keys.isEmpty())
        return tr("Write follow-up prompts in the Prompts tab. Copy or paste them into the chat and tick "
                  "them off.");
    return tr("Select text and press %1 to save it as a prompt, or write follow-up prompts in the Prompts "
              "tab. "
              "Copy or paste them into the chat and tick them off.")
        .arg(keys);
}

QString GuideTopics::noticeOf(size_t place) const
{
    const std::optional<Command> command = kTopics.at(place).command;
    return command && m_keys ? m_keys->notice(*command) : QString();
}

QString GuideTopics::spoken(size_t place) const
{
    const Topic &topic = kTopics.at(place);
    QStringList words{tr(topic.title)};
    const QStringList keys = keysOf(place);
    for (const QString &key : keys)
        words.append(KeyLabels::label(key, placeOf(topic)));
    const QString notice = noticeOf(place);
    if (!notice.isEmpty())
        words.append(notice);
    return words.join(u", "_s);
}

QHash<int, QByteArray> GuideTopics::roleNames() const
{
    return {{SymbolRole, "symbol"},
            {TitleRole, "title"},
            {KeysRole, "keys"},
            {PlaceRole, "place"},
            {TextRole, "text"},
            {SpokenRole, "spoken"},
            {ShowsAccessRole, "showsAccess"},
            {NoticeRole, "notice"},
            {IsTakenRole, "isTaken"}};
}

} // namespace vesk
