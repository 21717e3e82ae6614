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
    /// How a content came to be on the pasteboard.
    enum class Claim {
        /// By an application that the user works with, or the platform cannot tell.
        Ordinary,
        /// By a program that the user does not work with at the moment. A clipboard manager claims the
        /// content of others in this way, unchanged.
        Aside,
        /// Right after the program that the content before came from had gone. That content is on the
        /// pasteboard again if a clipboard manager had kept it.
        AfterLoss,
    };

    /// Where a content comes from, as far as the platform can tell.
    struct Origin
    {
        /// The process that put it there.
        std::optional<qint64> processIdentifier;
        /// How long before the change was made the user had asked for it, by that process's word: an
        /// application that hung makes a copy later than it was told to.
        std::optional<std::chrono::milliseconds> delay;
        Claim claim = Claim::Ordinary;
    };

    /// How long a reading waits for the owner of the content.
    enum class Patience {
        /// The user waits for something else, and would rather have it without this text.
        Short,
        /// The user has asked for this text, as by pasting.
        Long,
    };

    /// Rises with every change of the content, whoever made it, this program included.
    [[nodiscard]] virtual qint64 changeCount() const = 0;

    /// Whether there is anything on the pasteboard, readable or not. Read at the call.
    [[nodiscard]] virtual bool hasContents() const = 0;

    /// Where the content came from that the last change brought.
    [[nodiscard]] virtual Origin origin() const = 0;

    /// Everything on the pasteboard, for writing it back. Representations that the owner refuses are left
    /// out, and so may be those that can be made again from others. If anything else cannot be had whole
    /// (it is declared secret, it is too large, the owner is silent for too long), the list is empty, as it
    /// is for an empty pasteboard. So ask `hasContents` before replacing what must not be lost.
    virtual QCoro::Task<QList<PasteboardItem>> pasteboardItems() = 0;

    /// The content as text. Nullopt if it has no text, is declared secret, or its owner does not answer in
    /// time.
    virtual QCoro::Task<std::optional<QString>> string(Patience patience) = 0;
    QCoro::Task<std::optional<QString>> string() { return string(Patience::Short); }

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
