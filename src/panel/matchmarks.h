// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickTextDocument>

namespace vesk {

/// Highlights the matches of a search in a text item.
class MatchMarks : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY changed)
    Q_PROPERTY(QString query MEMBER m_query NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit MatchMarks(QObject *parent = nullptr);

    [[nodiscard]] QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);

Q_SIGNALS:
    void changed();

private:
    void mark();
    void markAnew();

    QPointer<QQuickTextDocument> m_document;
    QString m_query;
    QColor m_color;
    bool m_hasMarks = false;
};

} // namespace vesk
