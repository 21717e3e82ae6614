// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QObject>
#include <QQmlEngine>
#include <QQmlParserStatus>

namespace vesk {

/// Measures whether a text has more lines than allowed at a width, and truncates it if so.
class TextMeasure : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY inputChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY inputChanged)
    /// In points.
    Q_PROPERTY(qreal width MEMBER m_width NOTIFY inputChanged)
    Q_PROPERTY(int lineLimit MEMBER m_lineLimit NOTIFY inputChanged)
    /// The text, or as much of it as fits into the lines, followed by an ellipsis.
    Q_PROPERTY(QString shortText READ shortText NOTIFY measured)
    Q_PROPERTY(bool isLong READ isLong NOTIFY measured)

public:
    explicit TextMeasure(QObject *parent = nullptr);

    void classBegin() override {}
    void componentComplete() override;

    [[nodiscard]] const QString &shortText() const { return m_shortText; }
    [[nodiscard]] bool isLong() const { return m_isLong; }

Q_SIGNALS:
    void inputChanged();
    void measured();

private:
    void measure();

    QString m_text;
    QFont m_font;
    qreal m_width = 0;
    int m_lineLimit = 1;
    QString m_shortText;
    bool m_isLong = false;
    bool m_isComplete = false;
};

} // namespace vesk
