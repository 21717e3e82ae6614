// SPDX-License-Identifier: MIT
#pragma once

#include "components/commandkeys.h"
#include "components/keylabels.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QQmlEngine>

namespace vesk {

/// What the guide tells of, one row a topic: only what is true on this desktop.
class GuideTopics : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Without them the topics show none of the keys that work everywhere.
    Q_PROPERTY(vesk::CommandKeys *commandKeys READ commandKeys WRITE setCommandKeys NOTIFY commandKeysChanged)

public:
    enum Role {
        SymbolRole = Qt::UserRole + 1, ///< QString, the name of a system symbol
        TitleRole,                     ///< QString
        KeysRole,                      ///< QStringList, in the notation of Vesk's texts; may be empty
        PlaceRole,                     ///< KeyLabels::Place in which those keys are pressed
        TextRole,                      ///< QString, with keys spelt as this desktop's keyboard has them
        SpokenRole,                    ///< QString, title and keys as a screen reader says them
        ShowsAccessRole,               ///< bool, whether what it tells of needs access to other applications
        NoticeRole,                    ///< QString, why the keys do not work; empty if they do
        IsTakenRole,                   ///< bool, whether that is as another program has them
    };

    [[nodiscard]] CommandKeys *commandKeys() const { return m_keys; }
    void setCommandKeys(CommandKeys *keys);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void commandKeysChanged();

private:
    // Of the topic at this place of the table.
    [[nodiscard]] QStringList keysOf(size_t place) const;
    [[nodiscard]] QString textOf(size_t place) const;
    [[nodiscard]] QString noticeOf(size_t place) const;
    [[nodiscard]] QString spoken(size_t place) const;

    QPointer<CommandKeys> m_keys;
};

} // namespace vesk
