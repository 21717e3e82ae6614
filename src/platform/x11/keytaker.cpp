// SPDX-License-Identifier: MIT
#include "platform/x11/keytaker.h"

#include <algorithm>
#include <array>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

constexpr uint32_t kControl = 0xffe3; // XK_Control_L
constexpr uint32_t kShift = 0xffe1;   // XK_Shift_L

/// Terminals by the class of their windows, for those whose desktop entry is missing or says nothing.
constexpr std::array kTerminals{
    "alacritty"_L1,
    "contour"_L1,
    "cool-retro-term"_L1,
    "deepin-terminal"_L1,
    "ghostty"_L1,
    "gnome-terminal"_L1,
    "gnome-terminal-server"_L1,
    "guake"_L1,
    "hyper"_L1,
    "kgx"_L1,
    "kitty"_L1,
    "konsole"_L1,
    "lxterminal"_L1,
    "mate-terminal"_L1,
    "ptyxis"_L1,
    "qterminal"_L1,
    "rio"_L1,
    "roxterm"_L1,
    "sakura"_L1,
    "st"_L1,
    "st-256color"_L1,
    "terminator"_L1,
    "terminology"_L1,
    "tilda"_L1,
    "tilix"_L1,
    "urxvt"_L1,
    "wezterm"_L1,
    "xfce4-terminal"_L1,
    "yakuake"_L1,
};

constexpr std::array kOldTerminals{
    "eterm"_L1,
    "rxvt"_L1,
    "uxterm"_L1,
    "xterm"_L1,
};

constexpr std::array kPasswordPrompts{
    "gcr-prompter"_L1,
    "ksshaskpass"_L1,
    "lxpolkit"_L1,
    "lxqt-policykit-agent"_L1,
    "kwalletd5"_L1,
    "kwalletd6"_L1,
    "mate-polkit"_L1,
    "pinentry"_L1,
    "pinentry-gtk-2"_L1,
    "pinentry-qt"_L1,
    "polkit-gnome-authentication-agent-1"_L1,
    "polkit-kde-authentication-agent-1"_L1,
    "polkit-mate-authentication-agent-1"_L1,
    "ssh-askpass"_L1,
    "x11-ssh-askpass"_L1,
    "xfce-polkit"_L1,
};

template <typename Names>
bool isOneOf(const WindowIdentity &window, const Names &names)
{
    return std::ranges::any_of(names, [&window](QLatin1StringView name) {
        return window.className.compare(name, Qt::CaseInsensitive) == 0
               || window.instanceName.compare(name, Qt::CaseInsensitive) == 0
               || window.executableName.compare(name, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

KeyTaker keyTakerOf(const WindowIdentity &window, const DesktopEntry *entry)
{
    if (isOneOf(window, kPasswordPrompts))
        return KeyTaker::PasswordPrompt;
    if (isOneOf(window, kOldTerminals))
        return KeyTaker::OldTerminal;
    if ((entry && entry->isTerminal) || isOneOf(window, kTerminals))
        return KeyTaker::Terminal;
    if (window.className.compare("Emacs"_L1, Qt::CaseInsensitive) == 0)
        return KeyTaker::Emacs;
    return KeyTaker::Ordinary;
}

QList<uint32_t> keysFor(EventPoster::Command command, KeyTaker taker)
{
    const bool isCopy = command == EventPoster::Command::Copy;
    switch (taker) {
    case KeyTaker::Ordinary:
        return {kControl, isCopy ? uint32_t{'c'} : uint32_t{'v'}};
    case KeyTaker::Terminal:
        return isCopy ? QList<uint32_t>() : QList<uint32_t>{kControl, kShift, 'v'};
    case KeyTaker::Emacs:
        return isCopy ? QList<uint32_t>() : QList<uint32_t>{kControl, 'y'};
    case KeyTaker::OldTerminal:
    case KeyTaker::PasswordPrompt:
        break;
    }
    return {};
}

} // namespace vesk
