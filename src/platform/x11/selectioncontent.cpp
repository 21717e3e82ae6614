// SPDX-License-Identifier: MIT
#include "platform/x11/selectioncontent.h"

#include "platform/accessibility.h"
#include "platform/x11/selectionbytes.h"
#include "platform/x11/selectiontransfer.h"
#include "platform/x11/x11connection.h"

#include <QPointer>

#include <algorithm>
#include <array>

namespace vesk::selectioncontent {

namespace {

using Outcome = SelectionTransfer::Outcome;

constexpr qsizetype kSmall = 1 << 16; // bytes
constexpr const char *kSecretHint = "x-kde-passwordManagerHint";

struct TextTarget
{
    const char *name;
    selectionbytes::Encoding encoding;
};

/// The forms in which text is taken, best first.
constexpr std::array kTextTargets{
    TextTarget{.name = "UTF8_STRING", .encoding = selectionbytes::Encoding::Utf8},
    TextTarget{.name = "text/plain;charset=utf-8", .encoding = selectionbytes::Encoding::Utf8},
    TextTarget{.name = "STRING", .encoding = selectionbytes::Encoding::Latin1},
};

/// Targets that are no content. Some of them are commands: converting DELETE deletes. TEXT is whichever
/// encoding the owner likes, which only it can tell.
constexpr std::array kProtocolTargets{
    "TARGETS", "TIMESTAMP",        "MULTIPLE",        "SAVE_TARGETS",
    "DELETE",  "INSERT_SELECTION", "INSERT_PROPERTY", "TEXT",
};

/// The targets that the owner lists; none if it does not answer, or declares its content secret.
QCoro::Task<QList<xcb_atom_t>> readTargets(QPointer<X11Connection> connection, xcb_atom_t selection)
{
    const xcb_atom_t list = connection->atom("TARGETS");
    const xcb_atom_t hint = connection->atom(kSecretHint);
    const SelectionTransfer::Data data =
        co_await SelectionTransfer::read(*connection, selection, list, kSmall);
    if (connection.isNull() || data.outcome != Outcome::Complete)
        co_return QList<xcb_atom_t>();
    QList<xcb_atom_t> targets = selectionbytes::atoms(data.bytes);
    // Only owners that list the hint are asked for it: some answer every target with their text.
    if (targets.contains(hint)) {
        const SelectionTransfer::Data value =
            co_await SelectionTransfer::read(*connection, selection, hint, kSmall);
        // An owner that lists the hint and then does not tell is not trusted to be harmless.
        if (value.outcome != Outcome::Complete || value.bytes.trimmed() == QByteArrayLiteral("secret"))
            targets.clear();
    }
    co_return targets;
}

bool isContent(const X11Connection &connection, xcb_atom_t target)
{
    return std::ranges::none_of(kProtocolTargets,
                                [&](const char *name) { return connection.atom(name) == target; });
}

} // namespace

QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection)
{
    const QPointer<X11Connection> guard(&connection);
    const QList<xcb_atom_t> targets = co_await readTargets(guard, selection);
    if (guard.isNull())
        co_return std::nullopt;
    const auto *const best = std::ranges::find_if(kTextTargets, [&](const TextTarget &target) {
        return targets.contains(connection.atom(target.name));
    });
    if (best == kTextTargets.end())
        co_return std::nullopt;
    const xcb_atom_t target = connection.atom(best->name);
    const SelectionTransfer::Data data =
        co_await SelectionTransfer::read(connection, selection, target, kMaximumTextBytes);
    if (data.outcome != Outcome::Complete)
        co_return std::nullopt;
    co_return selectionbytes::text(data.bytes, best->encoding);
}

QCoro::Task<PasteboardItem> representations(X11Connection &connection, xcb_atom_t selection)
{
    const QPointer<X11Connection> guard(&connection);
    const QList<xcb_atom_t> targets = co_await readTargets(guard, selection);
    PasteboardItem item;
    QList<xcb_atom_t> asked;
    for (const xcb_atom_t target : targets) {
        if (guard.isNull())
            co_return PasteboardItem();
        if (asked.contains(target) || !isContent(connection, target))
            continue;
        asked.append(target);
        const SelectionTransfer::Data data =
            co_await SelectionTransfer::read(connection, selection, target, kMaximumBytes);
        // A part would pass for the whole.
        if (data.outcome == Outcome::Stalled || guard.isNull())
            co_return PasteboardItem();
        // Numbers are facts about the owner itself (its windows, its lengths), not content.
        const bool isWhole = data.outcome == Outcome::Complete && data.bytes.size() <= kMaximumBytes;
        if (isWhole && data.format == 8)
            item.append({.type = connection.atomName(target), .data = data.bytes});
    }
    co_return std::move(item);
}

} // namespace vesk::selectioncontent
