// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace vesk {

/// The program's name on the session bus. The first process owns it; every later one finds it taken and calls
/// the first. Implements org.freedesktop.Application, so that a desktop can do the same. Adaptors that are
/// children of this object are exported as well.
class ApplicationService final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim {
        /// This is the first process. `activated` is emitted for later ones.
        First,
        /// Another process is running, and was told to come forward unless `LeaveAlone` was given.
        Forwarded,
        /// Another process is running but did not answer within 5 s.
        NoAnswer,
        /// There is no session bus.
        NoBus,
    };

    /// Key in the platform data of Activate: the call only asks whether Vesk is running.
    static inline const QString kInBackground = QStringLiteral("background");

    using QObject::QObject;

    enum class IfTaken {
        BringForward,
        LeaveAlone,
    };

    /// Takes the name, or calls its owner. Blocks until that answers, since nothing else is running yet. If
    /// the owner is a command that is only adding a note, waits until it is done.
    [[nodiscard]] Claim claim(IfTaken ifTaken = IfTaken::BringForward);

public Q_SLOTS:
    // The remote side of org.freedesktop.Application.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

Q_SIGNALS:
    void activated();
    /// Emitted when an action of the desktop entry was chosen.
    void actionActivated(const QString &name);

private:
    /// Returns nullopt if the owner of the name is not a running Vesk.
    [[nodiscard]] static std::optional<Claim> forward(IfTaken ifTaken);
};

} // namespace vesk
