// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickPaintedItem>

namespace vesk {

/// The icon of a desktop application; a neutral tile if it has none.
class AppIcon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Empty for no application.
    Q_PROPERTY(QString bundleId READ bundleId WRITE setBundleId NOTIFY bundleIdChanged)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QColor tileColor READ tileColor WRITE setTileColor NOTIFY tileColorChanged)

public:
    explicit AppIcon(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

    [[nodiscard]] const QString &bundleId() const { return m_bundleId; }
    void setBundleId(const QString &bundleId);
    [[nodiscard]] qreal size() const { return implicitWidth(); }
    void setSize(qreal size);
    [[nodiscard]] const QColor &tileColor() const { return m_tileColor; }
    void setTileColor(const QColor &color);

Q_SIGNALS:
    void bundleIdChanged();
    void sizeChanged();
    void tileColorChanged();

private:
    QString m_bundleId;
    QColor m_tileColor;
};

} // namespace vesk
