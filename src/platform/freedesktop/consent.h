// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace vesk {

class IniDefaults;

/// The user's agreement that Vesk reads other applications. A Linux session has no permission of this
/// kind, so Vesk asks for it itself and remembers the answer for the user.
class Consent final : public QObject
{
    Q_OBJECT

public:
    explicit Consent(IniDefaults &defaults);

    [[nodiscard]] bool isGiven() const { return m_isGiven; }
    /// Gives the agreement or withdraws it, for this and every later run.
    void setGiven(bool isGiven);

Q_SIGNALS:
    /// It was given or withdrawn, here or by another process.
    void changed();

private:
    void update();

    IniDefaults &m_defaults;
    bool m_isGiven;
};

} // namespace vesk
