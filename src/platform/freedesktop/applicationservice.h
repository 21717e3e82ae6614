// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace vesk {

/// The program's name on the session bus: the first start has it, every later one finds it taken and
/// calls the first. Speaks org.freedesktop.Application, so that a desktop may do the same. Adaptors that
/// are its children are on the bus as well.
class ApplicationService final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim {
        /// This is the first start; `activated` tells of later ones.
        First,
        /// Another start runs, and has been told to come forward unless it was to be left alone.
        Forwarded,
        /// Another start runs, and did not answer within 5 s.
        NoAnswer,
        /// There is no session bus.
        NoBus,
    };

    /// In the platform data of Activate: the call only asks whether Vesk is there.
    static inline const QString kInBackground = QStringLiteral("background");

    using QObject::QObject;

    enum class IfTaken {
        BringForward,
        LeaveAlone,
    };

    /// Takes the name, or forwards to who has it. Blocks for that answer: nothing else of the program
    /// runs yet. A process that has the name only for a moment, to add a note, is waited for.
    [[nodiscard]] Claim claim(IfTaken ifTaken = IfTaken::BringForward);

public Q_SLOTS:
    // The remote side of org.freedesktop.Application.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

Q_SIGNALS:
    void activated();
    /// One of the actions of the desktop entry was chosen.
    void actionActivated(const QString &name);

private:
    /// None if who has the name is no Vesk that stays.
    [[nodiscard]] static std::optional<Claim> forward(IfTaken ifTaken);
};

} // namespace vesk
