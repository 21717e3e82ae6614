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

/// The short notice at the bottom of the screen that confirms what was done. One window serves all
/// notices; it takes neither the keyboard nor a click.
class Toast final : public QObject
{
    Q_OBJECT

public:
    /// All of these have to outlive the notice, and the engine has to be lent its surroundings before.
    /// The window readies itself as soon as the event loop has nothing else to do.
    Toast(QQmlEngine &engine, Screens &screens, Windows &windows, Clock &clock);
    ~Toast() override;

    /// Shows a message with a symbol, in place of the one before, for its full time: 1.4 seconds and
    /// the fading.
    void show(const QString &message, const QString &symbol);
    void show(const Notice &notice) { show(notice.text(), notice.symbol.toString()); }

    [[nodiscard]] QQuickView &window() { return m_view; }

private:
    static QCoro::Task<> leaveLater(QPointer<Toast> self, Clock *clock, quint64 notice);

    void prepareAhead();
    void setContent(const QString &message, const QString &symbol);
    void place();
    /// Has a screen reader read the notice out.
    void announce() const;

    Screens &m_screens;
    Windows &m_windows;
    Clock &m_clock;
    QQuickView m_view;
    WindowFade m_fade;
    /// Counts the notices, so that one that was replaced does not take the next one away.
    quint64 m_notice = 0;
};

} // namespace vesk
