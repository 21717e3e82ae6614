// SPDX-License-Identifier: MIT
#include "virtualdesktop/windowmanager.h"

#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Without a configuration file, i3 asks which keys to use. The bar is a dock, as most users have.
const auto kI3Config = u"# i3 config file (v4)\nfont pango:monospace 8\nbar {\n    position bottom\n}\n"_s;
/// Four workspaces, as with the others. Its compositor needs more than a busy machine can provide.
const auto kKWinConfig = u"[Compositing]\nEnabled=false\n\n[Desktops]\nNumber=4\nRows=1\n"_s;

QList<WindowManager> all()
{
    return {{u"openbox"_s, {u"openbox"_s}},
            {u"icewm"_s, {u"icewm"_s}},
            {u"xfwm4"_s, {u"xfwm4"_s}},
            {u"i3"_s, {u"i3"_s}, {{u"config/i3/config"_s, kI3Config}}},
            {u"mutter"_s, {u"mutter"_s, u"--x11"_s}},
            {u"metacity"_s, {u"metacity"_s}},
            {u"kwin_x11"_s, {u"kwin_x11"_s}, {{u"config/kwinrc"_s, kKWinConfig}}}};
}

} // namespace

std::optional<WindowManager> WindowManager::chosen()
{
    const QString name = qEnvironmentVariable("VESK_WINDOW_MANAGER", u"openbox"_s);
    const QList<WindowManager> known = all();
    const auto found =
        std::ranges::find_if(known, [&name](const WindowManager &each) { return each.name == name; });
    return found == known.end() ? std::nullopt : std::optional(*found);
}

bool WindowManager::isInstalled() const
{
    return !QStandardPaths::findExecutable(command.first()).isEmpty();
}

} // namespace vesk
