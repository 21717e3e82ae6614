// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <optional>

namespace vesk {

/// One representation of a pasteboard item: its type as the platform names it, and the bytes.
struct PasteboardData
{
    QString type;
    QByteArray data;

    friend bool operator==(const PasteboardData &, const PasteboardData &) = default;
};

/// One thing on the pasteboard in all of its representations, best first.
using PasteboardItem = QList<PasteboardData>;

/// The pasteboard that the user copies to and pastes from.
class Pasteboard : public QObject
{
    Q_OBJECT

public:
    /// Where a content comes from, as far as the platform can tell.
    struct Origin
    {
        /// The process that put it there.
        std::optional<qint64> processIdentifier;
        /// How long before the change was made the user had asked for it, by that process's word: an
        /// application that hung makes a copy later than it was told to.
        std::optional<std::chrono::milliseconds> delay;
    };

    /// Rises with every change of the content, whoever made it, this program included.
    [[nodiscard]] virtual qint64 changeCount() const = 0;

    /// Whether there is anything on the pasteboard, readable or not. Read at the call.
    [[nodiscard]] virtual bool hasContents() const = 0;

    /// Where the content came from that the last change brought.
    [[nodiscard]] virtual Origin origin() const = 0;

    /// Everything on the pasteboard. Representations whose owner does not deliver them are left out;
    /// an empty pasteboard gives an empty list, and so does content that is declared secret or whose
    /// owner stalls. What is not to be lost is therefore replaced only after asking `hasContents`.
    virtual QCoro::Task<QList<PasteboardItem>> pasteboardItems() = 0;

    /// The content as text. None if it has no text, is declared secret, or its owner does not answer.
    virtual QCoro::Task<std::optional<QString>> string() = 0;

    virtual void clearContents() = 0;

    /// Replaces the content by plain text.
    virtual void setString(const QString &text) = 0;

    /// Replaces the content by these items; an empty list empties the pasteboard.
    virtual void writeObjects(const QList<PasteboardItem> &items) = 0;

    /// Whether `changed` tells of every change. If false, a caller that must know looks at
    /// `changeCount` now and then.
    [[nodiscard]] virtual bool reportsChanges() const = 0;

Q_SIGNALS:
    /// The change count has risen.
    void changed();
};

} // namespace vesk
