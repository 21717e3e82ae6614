// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QObject>
#include <QPointer>

namespace vesk {

class Clock;
class NotesStore;

/// Checks once a minute whether the store's file is still there, so that a lost file is written again even if
/// the user changes nothing.
class StoreWatch final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    StoreWatch(NotesStore &store, Clock &clock);

private:
    static QCoro::Task<> watch(QPointer<StoreWatch> self, Clock *clock);

    NotesStore &m_store;
};

} // namespace vesk
