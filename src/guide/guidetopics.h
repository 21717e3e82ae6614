// SPDX-License-Identifier: MIT
#pragma once

#include "components/commandkeys.h"
#include "components/keylabels.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QQmlEngine>

namespace vesk {

/// The topics of the guide, one per row: only what is true on this desktop.
class GuideTopics : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    /// If null, the topics do not show global keys.
    Q_PROPERTY(vesk::CommandKeys *commandKeys READ commandKeys WRITE setCommandKeys NOTIFY commandKeysChanged)

public:
    enum Role {
        SymbolRole = Qt::UserRole + 1, ///< QString, the name of a system symbol
        TitleRole,                     ///< QString
        KeysRole,                      ///< QStringList, in the notation of Vesk's texts; may be empty
        PlaceRole,                     ///< KeyLabels::Place in which those keys are pressed
        TextRole,                      ///< QString, with keys spelt as on this desktop's keyboard
        SpokenRole,                    ///< QString, title and keys in a screen reader's words
        ShowsAccessRole,               ///< bool, whether the topic needs access to other applications
        NoticeRole,                    ///< QString, why the keys do not work; empty if they do
        IsTakenRole, ///< bool, whether the keys do not work because another program has taken them
    };

    [[nodiscard]] CommandKeys *commandKeys() const { return m_keys; }
    void setCommandKeys(CommandKeys *keys);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void commandKeysChanged();

private:
    // The keys of the topic at this index of the table.
    [[nodiscard]] QStringList keysOf(size_t place) const;
    [[nodiscard]] QString textOf(size_t place) const;
    [[nodiscard]] QString noticeOf(size_t place) const;
    [[nodiscard]] QString spoken(size_t place) const;

    QPointer<CommandKeys> m_keys;
};

} // namespace vesk
