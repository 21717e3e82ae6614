// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QQuickPaintedItem>
#include <QTextLayout>

namespace vesk {

/// A text of a few lines, truncated with an ellipsis, in which the matches of a search are highlighted. The
/// text is plain: nothing in it is interpreted as markup.
class MatchText : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    Q_PROPERTY(QString query MEMBER m_query NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor matchColor MEMBER m_matchColor NOTIFY changed)
    Q_PROPERTY(int maximumLineCount MEMBER m_maximumLineCount NOTIFY changed)
    /// The space between two lines, in points.
    Q_PROPERTY(qreal lineSpacing MEMBER m_lineSpacing NOTIFY changed)
    Q_PROPERTY(bool strikeOut MEMBER m_strikeOut NOTIFY changed)
    /// Whether a text without directional characters is right-to-left; defaults to the interface's direction.
    Q_PROPERTY(bool fallbackIsRightToLeft MEMBER m_fallbackIsRightToLeft NOTIFY changed)

public:
    explicit MatchText(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void componentComplete() override;

private:
    [[nodiscard]] bool isRightToLeft() const;
    void layOut();
    /// Breaks `m_layout` into lines; returns where the last displayed line starts, and whether there are
    /// more.
    struct Lines
    {
        qsizetype lastStart = 0;
        qsizetype end = 0;
        qreal height = 0;
    };
    Lines breakLines(const QString &text);

    QString m_text;
    QString m_query;
    QFont m_font;
    QColor m_color;
    QColor m_matchColor;
    int m_maximumLineCount = 1;
    qreal m_lineSpacing = 0;
    bool m_strikeOut = false;
    bool m_fallbackIsRightToLeft = QGuiApplication::isRightToLeft();
    QTextLayout m_layout;
};

} // namespace vesk
