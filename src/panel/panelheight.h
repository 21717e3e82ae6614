// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

class Defaults;

/// How high the user wants the panel to be, in points; the screen may have less room. Owned by the
/// panel's model.
class PanelHeight final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")

public:
    explicit PanelHeight(Defaults &defaults);

    /// What was remembered last, or the usual height. Never below the panel's minimum.
    [[nodiscard]] qreal wanted() const { return m_wanted; }
    /// Holds until the program ends, unless `remember` is called.
    void setWanted(qreal height);
    /// Keeps what is wanted now for later runs, in whole points.
    void remember();

Q_SIGNALS:
    /// The user has pressed the mouse on the upper edge; until its button is released the window follows.
    void edgePressed();

private:
    Defaults &m_defaults;
    qreal m_wanted;
};

} // namespace vesk
