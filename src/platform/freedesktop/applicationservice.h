// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace vesk {

/// The program's name on the session bus: the first start has it, every later one finds it taken and
/// calls the first. Speaks org.freedesktop.Application, so that a desktop may do the same.
class ApplicationService final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim {
        /// This is the first start; `activated` tells of later ones.
        First,
        /// Another start runs, and has been told to come forward.
        Forwarded,
        /// Another start runs, and did not answer within 5 s.
        NoAnswer,
        /// There is no session bus.
        NoBus,
    };

    using QObject::QObject;

    /// Takes the name, or forwards to who has it. Blocks for that answer: nothing else of the program
    /// runs yet.
    [[nodiscard]] Claim claim();

public Q_SLOTS:
    // The remote side of org.freedesktop.Application.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

Q_SIGNALS:
    void activated();
};

} // namespace vesk
