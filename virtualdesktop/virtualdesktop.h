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

/// A complete desktop: an X server without a screen, the selected window manager, a session bus with the
/// accessibility bus, and an initially empty home folder. Everything ends with this object.
class VirtualDesktop final
{
public:
    /// What the desktop lacks.
    struct Lacks
    {
        /// Nobody provides it, as if it were not installed.
        bool accessibilityBus = false;
        /// An extension of the X server.
        QString extension = {};
        /// In pixels; most desktops have more.
        QSize screen = {1600, 1000};
    };

    /// Null if a part did not start; `problem` then says which.
    [[nodiscard]] static std::unique_ptr<VirtualDesktop> start(QString &problem, const Lacks &lacks);
    [[nodiscard]] static std::unique_ptr<VirtualDesktop> start(QString &problem);
    ~VirtualDesktop();
    Q_DISABLE_COPY_MOVE(VirtualDesktop)

    /// Sets an environment variable for programs that are started from now on.
    void setVariable(const QString &name, const QString &value) { m_environment.insert(name, value); }

    /// Starts a program on this desktop; null on failure.
    [[nodiscard]] std::unique_ptr<ChildProcess> run(const QString &program,
                                                    const QStringList &arguments = {});

    /// Starts Vesk and waits until it has its hot keys; null if it exited or never grabbed them.
    [[nodiscard]] std::unique_ptr<ChildProcess> startVesk();

    /// The program under test.
    [[nodiscard]] static QString veskProgram();

    /// Lets Vesk read other applications and marks its guide as seen, as after the first run.
    [[nodiscard]] bool prepareUser();

    /// Tells applications whether assistive programs are in use; many only check when they start. Initially
    /// on. Returns false on failure.
    [[nodiscard]] bool setAccessibility(bool isOn);

    /// Writes a file into the home folder, or a folder in it, and returns its path.
    [[nodiscard]] QString writeFile(const QString &name, const QString &text);

    /// The contents of a file in the home folder; empty if there is none.
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
    /// Used instead if the accessibility bus is missing.
    std::unique_ptr<BusDaemon> m_bareBus;
    std::unique_ptr<ChildProcess> m_windowManager;
    std::unique_ptr<DisplayConnection> m_display;
    std::unique_ptr<Windows> m_windows;
    std::unique_ptr<Keyboard> m_keyboard;
    std::unique_ptr<Pointer> m_pointer;
};

} // namespace vesk
