// SPDX-License-Identifier: MIT
#include "virtualdesktop/clipboardholder.h"

namespace vesk {

std::unique_ptr<ClipboardHolder> ClipboardHolder::hold(const QString &displayName, const Forms &forms,
                                                       const char *selection, const QList<QByteArray> &silent)
{
    std::unique_ptr<ClipboardHolder> holder(new ClipboardHolder(forms, silent));
    const auto handle = [holder = holder.get()](DisplayConnection &display,
                                                const xcb_generic_event_t &event) {
        const auto request = SelectionThread::requestIn(event);
        if (request && !holder->m_isHanging)
            holder->answer(display, *request);
    };
    holder->m_thread = SelectionThread::own(displayName, selection, handle);
    return holder->m_thread ? std::move(holder) : nullptr;
}

void ClipboardHolder::answer(DisplayConnection &display, const xcb_selection_request_event_t &request) const
{
    bool isGiven = false;
    QList<xcb_atom_t> targets{display.atom("TARGETS")};
    for (const auto &[name, bytes] : m_forms.asKeyValueRange()) {
        targets.append(display.atom(name.constData()));
        if (targets.constLast() != request.target)
            continue;
        SelectionThread::write(display, request, request.target, 8, bytes);
        isGiven = true;
    }
    for (const QByteArray &name : m_silent) {
        targets.append(display.atom(name.constData()));
        if (targets.constLast() == request.target)
            return;
    }
    if (request.target == targets.constFirst()) {
        SelectionThread::writeAtoms(display, request, targets);
        isGiven = true;
    }
    SelectionThread::notify(display, request, isGiven);
}

} // namespace vesk
