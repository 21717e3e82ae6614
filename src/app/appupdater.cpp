// SPDX-License-Identifier: MIT
#include "app/appupdater.h"

#include "platform/workspace.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Desktop entries of applications that install updates: GNOME, KDE Plasma, Ubuntu, Linux Mint, elementary
/// OS, and PackageKit itself.
const QStringList kUpdaters{u"org.gnome.Software"_s,      u"org.kde.discover"_s,
                            u"update-manager"_s,          u"mintupdate"_s,
                            u"io.elementary.appcenter"_s, u"org.gnome.PackageUpdater"_s};

/// Empty if none is installed.
QString findUpdater(const Workspace &workspace)
{
    const auto found = std::ranges::find_if(
        kUpdaters, [&workspace](const QString &id) { return workspace.hasApplication(id); });
    return found == kUpdaters.end() ? QString() : *found;
}

} // namespace

AppUpdater::AppUpdater(QQmlEngine &engine, Updates &updates, Workspace &workspace, Questions &questions)
    : m_engine(engine)
    , m_updates(updates)
    , m_workspace(workspace)
    , m_questions(questions)
{
    connect(&updates, &Updates::canCheckForUpdatesChanged, this, &AppUpdater::canCheckChanged);
    connect(&updates, &Updates::checkFinished, this, &AppUpdater::show);
}

MessageWindow::Content AppUpdater::describe(const Updates::Result &result, const QString &updater)
{
    const QString close = tr("OK");
    switch (result.outcome) {
    case Updates::Outcome::UpToDate:
        return {.heading = tr("Vesk is up to date"),
                .message = tr("Version %1 is the newest that your system can install.").arg(result.version),
                .acceptLabel = close,
                .rejectLabel = {}};
    case Updates::Outcome::Available:
        if (updater.isEmpty())
            return {
                .heading = tr("There is a newer Vesk"),
                .message =
                    tr("Your system can install version %1 with your package manager.").arg(result.version),
                .acceptLabel = close,
                .rejectLabel = {}};
        return {.heading = tr("There is a newer Vesk"),
                .message = tr("Your system can install version %1.").arg(result.version),
                .acceptLabel = tr("Open Updates"),
                .rejectLabel = tr("Later")};
    case Updates::Outcome::NotInstalled:
        return {.heading = tr("Your system does not update this copy of Vesk"),
                .message =
                    tr("It was not installed as a package. Look for a newer version where you got this one."),
                .acceptLabel = close,
                .rejectLabel = {}};
    case Updates::Outcome::Failed:
        break;
    }
    return {.heading = tr("Could not check for updates"),
            .message = tr("Your system’s package service did not answer. Try again later."),
            .acceptLabel = close,
            .rejectLabel = {}};
}

void AppUpdater::show(const Updates::Result &result)
{
    const QString updater = findUpdater(m_workspace);
    m_window = std::make_unique<MessageWindow>(m_engine, describe(result, updater));
    const bool opensUpdater = result.outcome == Updates::Outcome::Available && !updater.isEmpty();
    connect(m_window.get(), &MessageWindow::accepted, this, [this, opensUpdater, updater] {
        m_questions.hide(*m_window);
        if (opensUpdater)
            m_workspace.openApplication(updater);
    });
    connect(m_window.get(), &MessageWindow::rejected, this, [this] { m_questions.hide(*m_window); });
    // The user may have continued typing since asking.
    m_questions.showUnasked(*m_window);
}

} // namespace vesk
