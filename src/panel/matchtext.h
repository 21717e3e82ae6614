// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QTextLayout>

namespace vesk {

/// A text of a few lines, cut off with an ellipsis, in which the matches of a search are marked. The
/// text is plain: nothing in it is read as markup.
class MatchText : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY changed)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QColor matchColor READ matchColor WRITE setMatchColor NOTIFY changed)
    Q_PROPERTY(int maximumLineCount READ maximumLineCount WRITE setMaximumLineCount NOTIFY changed)
    /// In points, between two lines.
    Q_PROPERTY(qreal lineSpacing READ lineSpacing WRITE setLineSpacing NOTIFY changed)
    Q_PROPERTY(bool strikeOut READ strikeOut WRITE setStrikeOut NOTIFY changed)

public:
    explicit MatchText(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

    [[nodiscard]] const QString &text() const { return m_text; }
    void setText(const QString &text) { assign(m_text, text); }
    [[nodiscard]] const QString &query() const { return m_query; }
    void setQuery(const QString &query) { assign(m_query, query); }
    [[nodiscard]] const QFont &font() const { return m_font; }
    void setFont(const QFont &font) { assign(m_font, font); }
    [[nodiscard]] const QColor &color() const { return m_color; }
    void setColor(const QColor &color) { assign(m_color, color); }
    [[nodiscard]] const QColor &matchColor() const { return m_matchColor; }
    void setMatchColor(const QColor &color) { assign(m_matchColor, color); }
    [[nodiscard]] int maximumLineCount() const { return m_maximumLineCount; }
    void setMaximumLineCount(int count) { assign(m_maximumLineCount, count); }
    [[nodiscard]] qreal lineSpacing() const { return m_lineSpacing; }
    void setLineSpacing(qreal spacing) { assign(m_lineSpacing, spacing); }
    [[nodiscard]] bool strikeOut() const { return m_strikeOut; }
    void setStrikeOut(bool strikeOut) { assign(m_strikeOut, strikeOut); }

Q_SIGNALS:
    void changed();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void componentComplete() override;

private:
    template <typename Value>
    void assign(Value &member, const Value &value)
    {
        if (member == value)
            return;
        member = value;
        layOut();
        Q_EMIT changed();
    }

    void layOut();
    /// Breaks `m_layout` into lines; gives where the last line that is shown starts, and whether
    /// there would be more.
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
    QTextLayout m_layout;
};

} // namespace vesk
