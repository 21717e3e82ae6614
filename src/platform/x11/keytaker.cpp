// SPDX-License-Identifier: MIT
#include "platform/x11/keytaker.h"

#include <algorithm>
#include <array>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

constexpr uint32_t kControl = 0xffe3; // XK_Control_L
constexpr uint32_t kShift = 0xffe1;   // XK_Shift_L

/// Names of programs: the class or instance of their windows, their executable, or the last part of their
/// application ID, case-insensitive. A trailing star matches any ending.
struct Row
{
    QLatin1StringView name;
    KeyTaker taker;
};

// clang-format off
constexpr std::array kPrograms{
    Row{"alacritty"_L1, KeyTaker::Terminal},
    Row{"blackbox"_L1, KeyTaker::Terminal},
    Row{"contour"_L1, KeyTaker::Terminal},
    Row{"cool-retro-term"_L1, KeyTaker::Terminal},
    Row{"deepin-terminal"_L1, KeyTaker::Terminal},
    Row{"foot"_L1, KeyTaker::Terminal},
    Row{"ghostty"_L1, KeyTaker::Terminal},
    Row{"gnome-terminal"_L1, KeyTaker::Terminal},
    Row{"gnome-terminal-server"_L1, KeyTaker::Terminal},
    Row{"guake"_L1, KeyTaker::Terminal},
    Row{"hyper"_L1, KeyTaker::Terminal},
    Row{"kgx"_L1, KeyTaker::Terminal},
    Row{"kitty"_L1, KeyTaker::Terminal},
    Row{"konsole"_L1, KeyTaker::Terminal},
    Row{"lxterminal"_L1, KeyTaker::Terminal},
    Row{"mate-terminal"_L1, KeyTaker::Terminal},
    Row{"ptyxis"_L1, KeyTaker::Terminal},
    Row{"qterminal"_L1, KeyTaker::Terminal},
    Row{"rio"_L1, KeyTaker::Terminal},
    Row{"roxterm"_L1, KeyTaker::Terminal},
    Row{"sakura"_L1, KeyTaker::Terminal},
    Row{"st"_L1, KeyTaker::Terminal},
    Row{"st-256color"_L1, KeyTaker::Terminal},
    Row{"tabby"_L1, KeyTaker::Terminal},
    Row{"terminal"_L1, KeyTaker::Terminal},
    Row{"terminator"_L1, KeyTaker::Terminal},
    Row{"terminology"_L1, KeyTaker::Terminal},
    Row{"tilda"_L1, KeyTaker::Terminal},
    Row{"tilix"_L1, KeyTaker::Terminal},
    Row{"urxvt"_L1, KeyTaker::Terminal},
    Row{"warp"_L1, KeyTaker::Terminal},
    Row{"wave"_L1, KeyTaker::Terminal},
    Row{"wezterm"_L1, KeyTaker::Terminal},
    Row{"wezterm-gui"_L1, KeyTaker::Terminal},
    Row{"xfce4-terminal"_L1, KeyTaker::Terminal},
    Row{"yakuake"_L1, KeyTaker::Terminal},
    Row{"eterm"_L1, KeyTaker::OwnKeys},
    Row{"gvim"_L1, KeyTaker::OwnKeys},
    Row{"mlterm"_L1, KeyTaker::OwnKeys},
    Row{"neovide"_L1, KeyTaker::OwnKeys},
    Row{"nvim-qt"_L1, KeyTaker::OwnKeys},
    Row{"pterm"_L1, KeyTaker::OwnKeys},
    Row{"putty"_L1, KeyTaker::OwnKeys},
    Row{"rxvt"_L1, KeyTaker::OwnKeys},
    Row{"uxterm"_L1, KeyTaker::OwnKeys},
    Row{"xterm"_L1, KeyTaker::OwnKeys},
    Row{"emacs"_L1, KeyTaker::Emacs},
    Row{"gcr-prompter"_L1, KeyTaker::PasswordPrompt},
    Row{"ksshaskpass"_L1, KeyTaker::PasswordPrompt},
    Row{"kwalletd5"_L1, KeyTaker::PasswordPrompt},
    Row{"kwalletd6"_L1, KeyTaker::PasswordPrompt},
    Row{"lxpolkit"_L1, KeyTaker::PasswordPrompt},
    Row{"lxqt-policykit-agent"_L1, KeyTaker::PasswordPrompt},
    Row{"mate-polkit"_L1, KeyTaker::PasswordPrompt},
    Row{"pinentry"_L1, KeyTaker::PasswordPrompt},
    Row{"pinentry-gtk-2"_L1, KeyTaker::PasswordPrompt},
    Row{"pinentry-qt"_L1, KeyTaker::PasswordPrompt},
    Row{"polkit-gnome-authentication-agent-1"_L1, KeyTaker::PasswordPrompt},
    Row{"polkit-kde-authentication-agent-1"_L1, KeyTaker::PasswordPrompt},
    Row{"polkit-mate-authentication-agent-1"_L1, KeyTaker::PasswordPrompt},
    Row{"ssh-askpass"_L1, KeyTaker::PasswordPrompt},
    Row{"x11-ssh-askpass"_L1, KeyTaker::PasswordPrompt},
    Row{"xfce-polkit"_L1, KeyTaker::PasswordPrompt},
    Row{"anydesk"_L1, KeyTaker::OtherMachine},
    Row{"aqemu"_L1, KeyTaker::OtherMachine},
    Row{"bochs"_L1, KeyTaker::OtherMachine},
    Row{"boxes"_L1, KeyTaker::OtherMachine},
    Row{"connections"_L1, KeyTaker::OtherMachine},
    Row{"dosbox*"_L1, KeyTaker::OtherMachine},
    Row{"freerdp"_L1, KeyTaker::OtherMachine},
    Row{"genymotion"_L1, KeyTaker::OtherMachine},
    Row{"gnome-boxes"_L1, KeyTaker::OtherMachine},
    Row{"gnome-connections"_L1, KeyTaker::OtherMachine},
    Row{"gvncviewer"_L1, KeyTaker::OtherMachine},
    Row{"krdc"_L1, KeyTaker::OtherMachine},
    Row{"looking-glass-client"_L1, KeyTaker::OtherMachine},
    Row{"moonlight"_L1, KeyTaker::OtherMachine},
    Row{"moonlight-qt"_L1, KeyTaker::OtherMachine},
    Row{"nxplayer"_L1, KeyTaker::OtherMachine},
    Row{"nxplayer.bin"_L1, KeyTaker::OtherMachine},
    Row{"parsecd"_L1, KeyTaker::OtherMachine},
    Row{"qemu*"_L1, KeyTaker::OtherMachine},
    Row{"quickgui"_L1, KeyTaker::OtherMachine},
    Row{"rdesktop"_L1, KeyTaker::OtherMachine},
    Row{"realvnc*"_L1, KeyTaker::OtherMachine},
    Row{"remmina"_L1, KeyTaker::OtherMachine},
    Row{"remote-viewer"_L1, KeyTaker::OtherMachine},
    Row{"rustdesk"_L1, KeyTaker::OtherMachine},
    Row{"scrcpy"_L1, KeyTaker::OtherMachine},
    Row{"sdl-freerdp*"_L1, KeyTaker::OtherMachine},
    Row{"spicy"_L1, KeyTaker::OtherMachine},
    Row{"steamlink"_L1, KeyTaker::OtherMachine},
    Row{"teamviewer"_L1, KeyTaker::OtherMachine},
    Row{"tigervnc*"_L1, KeyTaker::OtherMachine},
    Row{"vinagre"_L1, KeyTaker::OtherMachine},
    Row{"virt-manager"_L1, KeyTaker::OtherMachine},
    Row{"virt-viewer"_L1, KeyTaker::OtherMachine},
    Row{"virtualbox*"_L1, KeyTaker::OtherMachine},
    Row{"virtualboxvm"_L1, KeyTaker::OtherMachine},
    Row{"vmplayer"_L1, KeyTaker::OtherMachine},
    Row{"vmrc"_L1, KeyTaker::OtherMachine},
    Row{"vmware*"_L1, KeyTaker::OtherMachine},
    Row{"vncviewer"_L1, KeyTaker::OtherMachine},
    Row{"waydroid"_L1, KeyTaker::OtherMachine},
    Row{"wfica*"_L1, KeyTaker::OtherMachine},
    Row{"wlfreerdp*"_L1, KeyTaker::OtherMachine},
    Row{"x2goagent"_L1, KeyTaker::OtherMachine},
    Row{"x2goclient"_L1, KeyTaker::OtherMachine},
    Row{"xephyr"_L1, KeyTaker::OtherMachine},
    Row{"xfreerdp*"_L1, KeyTaker::OtherMachine},
    Row{"xnest"_L1, KeyTaker::OtherMachine},
    Row{"xpra"_L1, KeyTaker::OtherMachine},
    Row{"xtigervncviewer"_L1, KeyTaker::OtherMachine},
    Row{"xvncviewer"_L1, KeyTaker::OtherMachine},
    Row{"android-studio*"_L1, KeyTaker::Uncertain},
    Row{"apache netbeans*"_L1, KeyTaker::Uncertain},
    Row{"arduino*"_L1, KeyTaker::Uncertain},
    Row{"atom"_L1, KeyTaker::Uncertain},
    Row{"builder"_L1, KeyTaker::Uncertain},
    Row{"code"_L1, KeyTaker::Uncertain},
    Row{"code - *"_L1, KeyTaker::Uncertain},
    Row{"code-insiders"_L1, KeyTaker::Uncertain},
    Row{"code-oss"_L1, KeyTaker::Uncertain},
    Row{"codeblocks"_L1, KeyTaker::Uncertain},
    Row{"codelite"_L1, KeyTaker::Uncertain},
    Row{"codium"_L1, KeyTaker::Uncertain},
    Row{"cursor"_L1, KeyTaker::Uncertain},
    Row{"dolphin"_L1, KeyTaker::Uncertain},
    Row{"eclipse"_L1, KeyTaker::Uncertain},
    Row{"geany"_L1, KeyTaker::Uncertain},
    Row{"gnome-builder"_L1, KeyTaker::Uncertain},
    Row{"jetbrains-*"_L1, KeyTaker::Uncertain},
    Row{"jupyter*"_L1, KeyTaker::Uncertain},
    Row{"kate"_L1, KeyTaker::Uncertain},
    Row{"kdevelop"_L1, KeyTaker::Uncertain},
    Row{"konqueror"_L1, KeyTaker::Uncertain},
    Row{"krusader"_L1, KeyTaker::Uncertain},
    Row{"lapce"_L1, KeyTaker::Uncertain},
    Row{"netbeans*"_L1, KeyTaker::Uncertain},
    Row{"positron"_L1, KeyTaker::Uncertain},
    Row{"pulsar"_L1, KeyTaker::Uncertain},
    Row{"pycharm*"_L1, KeyTaker::Uncertain},
    Row{"qtcreator"_L1, KeyTaker::Uncertain},
    Row{"rstudio"_L1, KeyTaker::Uncertain},
    Row{"spyder"_L1, KeyTaker::Uncertain},
    Row{"theia*"_L1, KeyTaker::Uncertain},
    Row{"thonny"_L1, KeyTaker::Uncertain},
    Row{"trae"_L1, KeyTaker::Uncertain},
    Row{"vscodium"_L1, KeyTaker::Uncertain},
    Row{"windsurf"_L1, KeyTaker::Uncertain},
    Row{"zed"_L1, KeyTaker::Uncertain},
    Row{"zed-editor"_L1, KeyTaker::Uncertain},
};

/// What a desktop entry's categories say about programs that are not in the table.
constexpr std::array kCategories{
    Row{"TerminalEmulator"_L1, KeyTaker::Terminal},
    Row{"RemoteAccess"_L1, KeyTaker::OtherMachine},
    Row{"Emulator"_L1, KeyTaker::OtherMachine},
    // Development environments contain a terminal.
    Row{"IDE"_L1, KeyTaker::Uncertain},
};

/// What the focused object is, by its role on the accessibility bus. An object that only draws may show
/// another machine's screen.
constexpr std::array kRoles{
    Row{"terminal"_L1, KeyTaker::Terminal},
    Row{"drawing area"_L1, KeyTaker::Uncertain},
    Row{"canvas"_L1, KeyTaker::Uncertain},
};
// clang-format on

bool isNamed(const QString &text, QLatin1StringView name)
{
    if (name.endsWith(u'*'))
        return text.startsWith(name.chopped(1), Qt::CaseInsensitive);
    return text.compare(name, Qt::CaseInsensitive) == 0;
}

QString lastPart(const QString &applicationId)
{
    return applicationId.section(u'.', -1);
}

KeyTaker takerOfProgram(const WindowIdentity &window, const DesktopEntry *entry)
{
    const std::array names{
        window.className,           window.instanceName,           window.executableName,
        lastPart(window.className), lastPart(window.instanceName), lastPart(window.gtkApplicationId)};
    for (const Row &row : kPrograms) {
        if (std::ranges::any_of(names, [&row](const QString &name) { return isNamed(name, row.name); }))
            return row.taker;
    }
    for (const Row &row : kCategories) {
        if (entry && entry->categories.contains(row.name))
            return row.taker;
    }
    return KeyTaker::Ordinary;
}

} // namespace

KeyTaker keyTakerOf(const WindowIdentity &window, const DesktopEntry *entry,
                    const std::optional<QString> &role)
{
    const KeyTaker program = takerOfProgram(window, entry);
    const bool canRoleDecide = program == KeyTaker::Ordinary || program == KeyTaker::Uncertain;
    if (!canRoleDecide || !role)
        return program;
    const auto *const row = std::ranges::find(kRoles, *role, &Row::name);
    return row == kRoles.end() ? KeyTaker::Ordinary : row->taker;
}

QList<uint32_t> keysFor(EventPoster::Command command, KeyTaker taker)
{
    using Command = EventPoster::Command;
    const bool isCopy = command == Command::Copy;
    const bool isSure = command == Command::Paste;
    switch (taker) {
    case KeyTaker::Ordinary:
        return {kControl, isCopy ? uint32_t{'c'} : uint32_t{'v'}};
    case KeyTaker::Uncertain:
        return isSure ? QList<uint32_t>{kControl, 'v'} : QList<uint32_t>();
    case KeyTaker::Terminal:
        return isSure ? QList<uint32_t>{kControl, kShift, 'v'} : QList<uint32_t>();
    case KeyTaker::Emacs:
        return isSure ? QList<uint32_t>{kControl, 'y'} : QList<uint32_t>();
    case KeyTaker::OwnKeys:
    case KeyTaker::PasswordPrompt:
    case KeyTaker::OtherMachine:
        break;
    }
    return {};
}

} // namespace vesk
