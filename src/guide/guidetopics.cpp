// SPDX-License-Identifier: MIT
#include "guide/guidetopics.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Topic
{
    const char *symbol;
    const char *title;
    /// Separated by spaces; empty for none.
    QStringView keys;
    KeyLabels::Place place;
    const char *text;
    bool showsAccess = false;
};

// The place of the keys is that of the caps alone: combinations within a text are all for Vesk's own
// windows. The combination for checklists has no exception here: no file manager of this desktop has it.
constexpr std::array kTopics{
    Topic{.symbol = "keyboard",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Open Vesk anywhere"),
          .keys = u"\u2325 \u2318 T",
          .place = KeyLabels::Global,
          .text =
              QT_TRANSLATE_NOOP("vesk::GuideTopics", "Press it in any app to open or hide Vesk. Escape also "
                                                     "hides it, and so does clicking another app.")},
    Topic{.symbol = "square.and.pencil",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Write a new note"),
          .keys = u"\u2303 \u2325 \u2318 N",
          .place = KeyLabels::Global,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Opens Vesk with the cursor in \u201CWrite a note\u2026\u201D. Return "
                                    "saves it, Shift-Return starts a new line.")},
    Topic{.symbol = "character.cursor.ibeam",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Save selected text"),
          .keys = u"\u2325 \u2318 N",
          .place = KeyLabels::Global,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Select text in a browser, ChatGPT, Claude, a terminal, anywhere, and "
                                    "press it. It becomes a note that remembers where it came from. With "
                                    "nothing selected, a quick note box opens."),
          .showsAccess = true},
    Topic{.symbol = "bubble.left.and.text.bubble.right",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Prompts for your AI chats"),
          .keys = u"\u21E7 \u21E7",
          .place = KeyLabels::Global,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Select text and tap Shift twice to save it as a prompt, or write "
                                    "follow-up prompts in the Prompts tab. Copy or paste them into the chat "
                                    "and tick them off.")},
    Topic{.symbol = "text.append",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Add to your last note"),
          .keys = u"\u2325 \u21E7 \u2318 N",
          .place = KeyLabels::Global,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Adds the selection to the bottom of the note you changed last. A note "
                                    "that ends in a checklist gets new checkboxes.")},
    Topic{.symbol = "checklist",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Make a checklist"),
          .keys = u"\u2325 \u2318 C",
          .place = KeyLabels::Global,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Each selected line becomes a checkbox. With nothing selected, a box "
                                    "opens on the first checkbox: Return adds the next item, \u2318\u21A9 "
                                    "saves.")},
    Topic{.symbol = "text.badge.plus",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Add to your checklist"),
          .keys = u"\u2325 \u21E7 \u2318 C",
          .place = KeyLabels::Global,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Each selected line becomes a new checkbox in the checklist you changed "
                                    "last, even if you edited other notes since.")},
    Topic{.symbol = "list.bullet",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Checkboxes and lists"),
          .keys = u"[ ] \u2423",
          .place = KeyLabels::Window,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Type [ ] and a space for a checkbox, - and a space for a bullet, # and "
                                    "a space for a heading. Tick boxes right on the card.")},
    Topic{.symbol = "arrow.up.and.down",
          .title = QT_TRANSLATE_NOOP("vesk::GuideTopics", "Keyboard in the panel"),
          .keys = u"\u2191 \u2193",
          .place = KeyLabels::Window,
          .text = QT_TRANSLATE_NOOP("vesk::GuideTopics",
                                    "Move between notes. Return opens one, \u2318\u21A9 pastes it into the "
                                    "app you came from, \u2318\u232B deletes it, ⌘F searches.")},
};

QStringList keysOf(const Topic &topic)
{
    return topic.keys.toString().split(u' ', Qt::SkipEmptyParts);
}

QString spoken(const QString &title, const Topic &topic)
{
    QStringList words{title};
    const QStringList keys = keysOf(topic);
    for (const QString &key : keys)
        words.append(KeyLabels::label(key, topic.place));
    return words.join(u", "_s);
}

} // namespace

int GuideTopics::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kTopics.size());
}

QVariant GuideTopics::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Topic &topic = kTopics.at(static_cast<size_t>(index.row()));
    switch (role) {
    case SymbolRole:
        return QString::fromLatin1(topic.symbol);
    case TitleRole:
        return tr(topic.title);
    case KeysRole:
        return keysOf(topic);
    case PlaceRole:
        return topic.place;
    case TextRole:
        return KeyLabels::spelt(tr(topic.text), KeyLabels::Window);
    case SpokenRole:
        return spoken(tr(topic.title), topic);
    case ShowsAccessRole:
        return topic.showsAccess;
    default:
        return {};
    }
}

QHash<int, QByteArray> GuideTopics::roleNames() const
{
    return {{SymbolRole, "symbol"},
            {TitleRole, "title"},
            {KeysRole, "keys"},
            {PlaceRole, "place"},
            {TextRole, "text"},
            {SpokenRole, "spoken"},
            {ShowsAccessRole, "showsAccess"}};
}

} // namespace vesk
