// SPDX-License-Identifier: MIT
#include "platform/x11/selectioncontent.h"

#include "platform/accessibility.h"
#include "platform/x11/contentforms.h"
#include "platform/x11/selectionbytes.h"
#include "platform/x11/selectiontransfer.h"
#include "platform/x11/x11connection.h"

#include <QPointer>

#include <algorithm>
#include <array>
#include <utility>

namespace vesk::selectioncontent {

namespace {

using Outcome = SelectionTransfer::Outcome;

constexpr qsizetype kSmall = 1 << 16; // bytes
constexpr const char *kSecretHint = "x-kde-passwordManagerHint";
/// How long an owner that has just listed its forms may take to make one of them. It is alive, and may be
/// converting a large picture.
constexpr std::chrono::milliseconds kConversion{1000};

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
    // In no stated encoding, which today means this one.
    TextTarget{.name = "text/plain", .encoding = selectionbytes::Encoding::Utf8},
};

/// The targets that the owner lists; empty if it does not answer, or declares its content secret.
QCoro::Task<QList<xcb_atom_t>> readTargets(QPointer<X11Connection> connection, xcb_atom_t selection,
                                           ReadingAllowance &allowance)
{
    const xcb_atom_t list = connection->atom("TARGETS");
    const xcb_atom_t hint = connection->atom(kSecretHint);
    const SelectionTransfer::Data data =
        co_await SelectionTransfer::read(*connection, selection, list, kSmall, allowance);
    if (connection.isNull() || data.outcome != Outcome::Complete)
        co_return QList<xcb_atom_t>();
    QList<xcb_atom_t> targets = selectionbytes::atoms(data.bytes);
    // Only owners that list the hint are asked for it: some answer every target with their text.
    if (targets.contains(hint)) {
        const SelectionTransfer::Data value =
            co_await SelectionTransfer::read(*connection, selection, hint, kSmall, allowance);
        // An owner that lists the hint and then does not tell is not trusted to be harmless.
        if (value.outcome != Outcome::Complete || value.bytes.trimmed() == QByteArrayLiteral("secret"))
            targets.clear();
    }
    co_return targets;
}

/// What the forms are kept in while they are read, in the owner's order.
struct Form
{
    xcb_atom_t target = XCB_ATOM_NONE;
    QByteArray name;
    /// The form that this one can be made from.
    QByteArray source;
    std::optional<QByteArray> bytes;
};

QList<Form> formsOf(const X11Connection &connection, const QList<xcb_atom_t> &targets)
{
    QList<Form> forms;
    QList<QByteArray> names;
    for (const xcb_atom_t target : targets) {
        const QByteArray name = connection.atomName(target).toLatin1();
        if (names.contains(name) || !contentforms::isContent(name))
            continue;
        names.append(name);
        forms.append({.target = target, .name = name, .source = {}, .bytes = {}});
    }
    for (Form &form : forms)
        form.source = contentforms::sourceOf(form.name, names);
    return forms;
}

bool hasBytes(const QList<Form> &forms, const QByteArray &name)
{
    const auto form = std::ranges::find(forms, name, &Form::name);
    return form != forms.cend() && form->bytes.has_value();
}

} // namespace

QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection,
                                         ReadingAllowance &allowance)
{
    const QPointer<X11Connection> guard(&connection);
    const QList<xcb_atom_t> targets = co_await readTargets(guard, selection, allowance);
    if (guard.isNull())
        co_return std::nullopt;
    // What is dragged is listed in the messages of the drag, and not by every source here too.
    const bool isUnlisted = targets.isEmpty() && selection == connection.atom("XdndSelection");
    for (const TextTarget &target : kTextTargets) {
        const xcb_atom_t atom = connection.atom(target.name);
        if (!isUnlisted && !targets.contains(atom))
            continue;
        const SelectionTransfer::Data data =
            co_await SelectionTransfer::read(connection, selection, atom, kMaximumReadBytes, allowance);
        // A text that is cut is still longer than any that is kept, so that the user can be told.
        if (data.outcome == Outcome::Complete || data.outcome == Outcome::Cut)
            co_return selectionbytes::text(data.bytes, target.encoding);
        if (data.outcome == Outcome::Stalled || guard.isNull())
            break;
    }
    co_return std::nullopt;
}

QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection)
{
    ReadingAllowance allowance(kShort);
    co_return co_await text(connection, selection, allowance);
}

QCoro::Task<PasteboardItem> representations(X11Connection &connection, xcb_atom_t selection,
                                            ReadingAllowance &allowance)
{
    const QPointer<X11Connection> guard(&connection);
    const QList<xcb_atom_t> targets = co_await readTargets(guard, selection, allowance);
    if (guard.isNull())
        co_return PasteboardItem();
    QList<Form> forms = formsOf(connection, targets);
    // First what must be kept, then what can be made from it, and is worth no more than a short wait.
    bool isOwnerSilent = false;
    for (const bool isMade : {false, true}) {
        for (Form &form : forms) {
            const bool isReplaceable = hasBytes(forms, form.source);
            allowance.setSilence(isReplaceable ? SelectionTransfer::kDeadline : kConversion);
            if (form.source.isEmpty() == isMade || (isReplaceable && isOwnerSilent))
                continue;
            const SelectionTransfer::Data data = co_await SelectionTransfer::read(
                connection, selection, form.target, kMaximumBytes, allowance);
            if (guard.isNull())
                co_return PasteboardItem();
            isOwnerSilent |= data.outcome == Outcome::Stalled;
            // A part is not the form.
            const bool isLost = isOwnerSilent || data.outcome == Outcome::Cut;
            if (isLost && !isReplaceable)
                co_return PasteboardItem();
            // Numbers are facts about the owner itself (its windows, its lengths), not content.
            if (data.outcome == Outcome::Complete && data.format == 8)
                form.bytes = data.bytes;
        }
    }
    PasteboardItem item;
    for (const Form &form : std::as_const(forms)) {
        if (form.bytes)
            item.append({.type = QString::fromLatin1(form.name), .data = *form.bytes});
    }
    co_return std::move(item);
}

} // namespace vesk::selectioncontent
