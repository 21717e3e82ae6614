// SPDX-License-Identifier: MIT
#pragma once

#include "quicknote/notice.h"
#include "quicknote/windowfade.h"

#include <QCoroTask>

#include <QObject>
#include <QPointer>
#include <QQuickView>

class QQmlEngine;

namespace vesk {

class Clock;
class Screens;
class Windows;

/// The short notice at the bottom of the screen that confirms what was done. All notices share one window,
/// which takes neither the focus nor clicks.
class Toast final : public QObject
{
    Q_OBJECT

public:
    /// The arguments must outlive the notice, and the engine must have been lent its surroundings before. The
    /// window prepares itself as soon as the event loop is idle.
    Toast(QQmlEngine &engine, Screens &screens, Windows &windows, Clock &clock);
    ~Toast() override;

    /// Shows a message with a symbol for its full time (1.4 seconds plus fading), replacing the previous one.
    void show(const QString &message, const QString &symbol);
    void show(const Notice &notice) { show(notice.text(), notice.symbol.toString()); }

    [[nodiscard]] QQuickView &window() { return m_view; }

private:
    static QCoro::Task<> leaveLater(QPointer<Toast> self, Clock *clock, quint64 notice);

    void prepareAhead();
    void setContent(const QString &message, const QString &symbol);
    void place();
    /// Makes a screen reader read the notice.
    void announce() const;

    Screens &m_screens;
    Windows &m_windows;
    Clock &m_clock;
    QQuickView m_view;
    WindowFade m_fade;
    /// Counts the notices, so that a replaced one does not hide its successor.
    quint64 m_notice = 0;
};

} // namespace vesk
