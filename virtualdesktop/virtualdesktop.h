// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/busdaemon.h"
#include "virtualdesktop/childprocess.h"
#include "virtualdesktop/keyboard.h"
#include "virtualdesktop/notesfile.h"
#include "virtualdesktop/pointer.h"
#include "virtualdesktop/windowmanager.h"
#include "virtualdesktop/windows.h"

#include <QTemporaryDir>

namespace vesk {

/// A desktop of its own: an X server without a screen, the chosen window manager, a session bus with the
/// accessibility bus, and a home folder that starts empty. All of it ends with this object.
class VirtualDesktop final
{
public:
    /// What a desktop may lack.
    struct Lacks
    {
        /// Nobody answers for it, as where it is not installed.
        bool accessibilityBus = false;
        /// An extension of the X server.
        QString extension = {};
        /// Pixels; most desktops have more.
        QSize screen = {1600, 1000};
    };

    /// Null if some part did not come up; `problem` then says which.
    [[nodiscard]] static std::unique_ptr<VirtualDesktop> start(QString &problem, const Lacks &lacks);
    [[nodiscard]] static std::unique_ptr<VirtualDesktop> start(QString &problem);
    ~VirtualDesktop();
    Q_DISABLE_COPY_MOVE(VirtualDesktop)

    /// Sets a variable for the programs that are started from now on.
    void setVariable(const QString &name, const QString &value) { m_environment.insert(name, value); }

    /// Starts a program on this desktop; null if that failed.
    [[nodiscard]] std::unique_ptr<ChildProcess> run(const QString &program,
                                                    const QStringList &arguments = {});

    /// Starts Vesk and waits until its hot keys are its own; null if it ended or never took them.
    [[nodiscard]] std::unique_ptr<ChildProcess> startVesk();

    /// The program under test.
    [[nodiscard]] static QString veskProgram();

    /// Lets Vesk read other applications and takes its guide for seen, as after the first run.
    [[nodiscard]] bool prepareUser();

    /// Says to applications that assistive programs are, or are not, in use; many ask only when they start.
    /// It begins switched on. Failure: false.
    [[nodiscard]] bool setAccessibility(bool isOn);

    /// Writes a file into the home folder, or a folder in it, and returns its path.
    [[nodiscard]] QString writeFile(const QString &name, const QString &text);

    /// What stands in a file of the home folder; empty if there is none.
    [[nodiscard]] QString readFile(const QString &name) const;

    [[nodiscard]] DisplayConnection &display() { return *m_display; }
    [[nodiscard]] Windows &windows() { return *m_windows; }
    [[nodiscard]] Keyboard &keyboard() { return *m_keyboard; }
    [[nodiscard]] Pointer &pointer() { return *m_pointer; }
    [[nodiscard]] NotesFile &notes() { return m_notes; }
    [[nodiscard]] const QString &displayName() const { return m_displayName; }
    [[nodiscard]] const QString &busAddress() const { return m_busAddress; }

private:
    explicit VirtualDesktop(Lacks lacks);

    void prepareEnvironment();
    [[nodiscard]] bool startServer();
    [[nodiscard]] bool startWindowManager();
    [[nodiscard]] bool waitForRootProperty(const char *name);
    [[nodiscard]] bool startBus();
    [[nodiscard]] bool enableAccessibility();

    const Lacks m_lacks;
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QString m_displayName;
    QString m_busAddress;
    int m_starts = 0;
    NotesFile m_notes;
    std::unique_ptr<ChildProcess> m_server;
    std::unique_ptr<ChildProcess> m_bus;
    /// Instead of it, where the accessibility bus is missing.
    std::unique_ptr<BusDaemon> m_bareBus;
    std::unique_ptr<ChildProcess> m_windowManager;
    std::unique_ptr<DisplayConnection> m_display;
    std::unique_ptr<Windows> m_windows;
    std::unique_ptr<Keyboard> m_keyboard;
    std::unique_ptr<Pointer> m_pointer;
};

} // namespace vesk
