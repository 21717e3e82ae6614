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

/// One representation of a pasteboard item: the platform's name of its type, and the bytes.
struct PasteboardData
{
    QString type;
    QByteArray data;

    friend bool operator==(const PasteboardData &, const PasteboardData &) = default;
};

/// One item on the pasteboard in all its representations, best first.
using PasteboardItem = QList<PasteboardData>;

/// The pasteboard that the user copies to and pastes from.
class Pasteboard : public QObject
{
    Q_OBJECT

public:
    /// How the content got onto the pasteboard.
    enum class Claim {
        /// From the application that the user works with, or the platform cannot tell.
        Ordinary,
        /// From a program that the user is not working with. This is how a clipboard manager takes over the
        /// content of others, unchanged.
        Aside,
        /// Right after the program that owned the previous content exited. If a clipboard manager had kept
        /// that content, it is on the pasteboard again.
        AfterLoss,
    };

    /// Where the content comes from, as far as the platform can tell.
    struct Origin
    {
        /// The process that put it there.
        std::optional<qint64> processIdentifier;
        /// How long before the change the user had asked for it, according to that process. An application
        /// that hung makes a copy later than it was told to.
        std::optional<std::chrono::milliseconds> delay;
        Claim claim = Claim::Ordinary;
    };

    /// How long to wait for the owner of the content.
    enum class Patience {
        /// The user waits for something else, which must not be held up by this text.
        Short,
        /// The user has asked for this very text, for example by pasting.
        Long,
    };

    /// Increases with every change of the content, including changes by this program.
    [[nodiscard]] virtual qint64 changeCount() const = 0;

    /// Whether there is anything on the pasteboard now, readable or not.
    [[nodiscard]] virtual bool hasContents() const = 0;

    /// Where the content of the last change came from.
    [[nodiscard]] virtual Origin origin() const = 0;

    /// Reads everything on the pasteboard, so that it can be written back later. Representations that the
    /// owner refuses are left out, and possibly those that can be made from others. If anything else cannot
    /// be read completely (it is marked as secret, too large, or its owner does not answer), the list is
    /// empty, as it is for an empty pasteboard: check `hasContents` before you replace content that must not
    /// be lost.
    virtual QCoro::Task<QList<PasteboardItem>> pasteboardItems() = 0;

    /// Reads the content as text. Nullopt if it has no text, is marked as secret, or its owner does not
    /// answer in time.
    virtual QCoro::Task<std::optional<QString>> string(Patience patience) = 0;
    QCoro::Task<std::optional<QString>> string() { return string(Patience::Short); }

    virtual void clearContents() = 0;

    /// Replaces the content with plain text.
    virtual void setString(const QString &text) = 0;

    /// Replaces the content with these items; an empty list empties the pasteboard.
    virtual void writeObjects(const QList<PasteboardItem> &items) = 0;

    /// Whether `changed` is emitted for every change. If not, callers must poll `changeCount`.
    [[nodiscard]] virtual bool reportsChanges() const = 0;

Q_SIGNALS:
    /// Emitted after `changeCount` has increased.
    void changed();
};

} // namespace vesk
