// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace vesk {

class IniDefaults;

/// The user's agreement that Vesk may read other applications. Linux desktops have no permission of this
/// kind, so Vesk asks for it and stores the answer.
class Consent final : public QObject
{
    Q_OBJECT

public:
    explicit Consent(IniDefaults &defaults);

    [[nodiscard]] bool isGiven() const { return m_isGiven; }
    /// Gives or withdraws the agreement, for this run and all later ones.
    void setGiven(bool isGiven);

Q_SIGNALS:
    /// Emitted when the agreement was given or withdrawn, here or by another process.
    void changed();

private:
    void update();

    IniDefaults &m_defaults;
    bool m_isGiven;
};

} // namespace vesk
