// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

class Defaults;

/// The height that the user wants for the panel, in points; the screen may have less room. Owned by the
/// panel's model.
class PanelHeight final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")

public:
    explicit PanelHeight(Defaults &defaults);

    /// The height remembered last, or the default. Never below the panel's minimum.
    [[nodiscard]] qreal wanted() const { return m_wanted; }
    /// Lasts until the program exits, unless `remember` is called.
    void setWanted(qreal height);
    /// Stores the wanted height for later runs, rounded to whole points.
    void remember();

Q_SIGNALS:
    /// The user has pressed the mouse on the upper edge; the window follows it until the button is released.
    void edgePressed();

private:
    Defaults &m_defaults;
    qreal m_wanted;
};

} // namespace vesk
