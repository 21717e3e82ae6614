// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace vesk {

/// A small single-colour picture, identified by the name of a system symbol.
class Symbol : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

    [[nodiscard]] const QString &name() const { return m_name; }
    /// An unknown name draws nothing; the suffix ".slash" strikes the picture through.
    void setName(const QString &name);
    [[nodiscard]] const QColor &color() const { return m_color; }
    void setColor(const QColor &color);
    [[nodiscard]] qreal size() const { return implicitWidth(); }
    void setSize(qreal size);

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void sizeChanged();

private:
    QString m_name;
    QColor m_color;
};

} // namespace vesk
