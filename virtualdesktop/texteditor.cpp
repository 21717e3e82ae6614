// SPDX-License-Identifier: MIT
#include "virtualdesktop/texteditor.h"

#include "virtualdesktop/accessibletree.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kStartBound = 15s;
constexpr auto kAnswerBound = 500ms;
/// A window that has just been mapped may miss the first keys; they are then typed again.
constexpr int kTries = 10;

} // namespace

std::unique_ptr<TextEditor> TextEditor::open(VirtualDesktop &desktop, const QStringList &lines,
                                             const QString &name)
{
    const QString file = desktop.writeFile(name, lines.join(u'\n') + u'\n');
    std::unique_ptr<ChildProcess> process = desktop.run(u"mousepad"_s, {u"--disable-server"_s, file});
    if (!process)
        return nullptr;
    const std::optional<Window> window = desktop.windows().waitViewableOf(process->pid(), name, kStartBound);
    if (!window)
        return nullptr;
    std::unique_ptr<TextEditor> editor(new TextEditor(desktop, std::move(process), lines));
    editor->m_window = *window;
    desktop.windows().activate(*window);
    return desktop.windows().waitActive(*window, kStartBound) ? std::move(editor) : nullptr;
}

TextEditor::TextEditor(VirtualDesktop &desktop, std::unique_ptr<ChildProcess> process, QStringList lines)
    : m_desktop(desktop)
    , m_process(std::move(process))
    , m_lines(std::move(lines))
{
}

bool TextEditor::selectLine(int index)
{
    Keyboard &keyboard = m_desktop.keyboard();
    for (int attempt = 0; attempt < kTries; ++attempt) {
        keyboard.tap({XK_Control_L, XK_Home});
        for (int line = 0; line < index; ++line)
            keyboard.tap({XK_Down});
        keyboard.tap({XK_Shift_L, XK_End});
        const bool isSelected = m_desktop.display().waitUntil(kAnswerBound, [&] {
            return m_desktop.display().readSelection("PRIMARY", kAnswerBound) == m_lines.at(index);
        });
        if (isSelected)
            return true;
    }
    return false;
}

bool TextEditor::deselect()
{
    m_desktop.keyboard().tap({XK_Control_L, XK_Home});
    return m_desktop.display().waitUntil(
        kAnswerBound, [&] { return !m_desktop.display().readSelection("PRIMARY", kAnswerBound); });
}

std::optional<QString> TextEditor::text()
{
    if (!deselect())
        return std::nullopt;
    m_desktop.keyboard().tap({XK_Control_L, XK_a});
    std::optional<QString> text;
    const bool isRead = m_desktop.display().waitUntil(kAnswerBound, [&] {
        text = m_desktop.display().readSelection("PRIMARY", kAnswerBound);
        return text.has_value();
    });
    return isRead ? text : std::nullopt;
}

QString TextEditor::shownText() const
{
    const QList<AccessibleObject> objects = AccessibleTree(m_desktop.busAddress()).objects(m_process->pid());
    const auto found = std::ranges::find_if(objects, [](const AccessibleObject &object) {
        return object.is(AccessibleObject::State::Editable) && object.is(AccessibleObject::State::MultiLine);
    });
    return found == objects.cend() ? QString() : found->text;
}

} // namespace vesk
