// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QVariantList>

namespace vesk {

/// The durations and curves of animations, following the user's motion preference. All durations are in
/// milliseconds. Owned by the theme.
class ThemeMotion final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of the theme.")

    /// False if the user wants no animation; all durations are then 0.
    Q_PROPERTY(bool isAllowed READ isAllowed NOTIFY changed)
    /// The spring of every animated change: critically damped, response 0.35 s.
    Q_PROPERTY(int spring READ spring NOTIFY changed)
    /// The spring of a button being pressed: response 0.25 s.
    Q_PROPERTY(int press READ press NOTIFY changed)
    Q_PROPERTY(QVariantList springCurve READ springCurve CONSTANT)
    /// The ease-out animation of focus and hover.
    Q_PROPERTY(int ease READ ease NOTIFY changed)
    /// How long a control shows that it has done what was asked.
    Q_PROPERTY(int feedback READ feedback CONSTANT)
    /// How long the pointer must rest on a control before its help appears.
    Q_PROPERTY(int helpDelay READ helpDelay CONSTANT)

public:
    explicit ThemeMotion(QObject *parent);

    void setAllowed(bool isAllowed);

    [[nodiscard]] bool isAllowed() const { return m_isAllowed; }
    [[nodiscard]] int spring() const { return m_isAllowed ? 500 : 0; }
    [[nodiscard]] int press() const { return m_isAllowed ? 360 : 0; }
    [[nodiscard]] static QVariantList springCurve();
    [[nodiscard]] int ease() const { return m_isAllowed ? 140 : 0; }
    [[nodiscard]] static int feedback() { return 1200; }
    [[nodiscard]] static int helpDelay() { return 600; }

Q_SIGNALS:
    void changed();

private:
    bool m_isAllowed = true;
};

} // namespace vesk
