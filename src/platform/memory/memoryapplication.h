// SPDX-License-Identifier: MIT
#pragma once

#include "platform/application.h"

#include <QPointer>
#include <QWindow>

namespace vesk {

/// This program without any others. It hides and shows its real windows; a test can take the focus away.
class MemoryApplication final : public Application
{
    Q_OBJECT

public:
    [[nodiscard]] bool isActive() const override { return m_isActive; }
    [[nodiscard]] bool isHidden() const override { return m_isHidden; }
    void hide() override;
    [[nodiscard]] bool isAway() const override { return m_isAway; }
    [[nodiscard]] bool isPreviousWindowClosed() const override { return m_isPreviousWindowClosed; }
    void unhide() override { m_isHidden = false; }
    [[nodiscard]] bool isAnyKeyDown() const override { return m_isAnyKeyDown; }
    void expectKeys() override { m_expectsKeys = true; }
    void expectNoKeys() override { m_expectsKeys = false; }
    bool holdKeys() override;
    void activate(QWindow &window) override;
    void giveKeyboardBack(QWindow &window) override;

    /// Simulates the user switching to another application.
    void resignActive();
    /// Sets whether the window manager has given the focus back to the previous window.
    void setAway(bool isAway) { m_isAway = isAway; }
    /// Simulates that the window that had the focus is closed.
    void closePreviousWindow() { m_isPreviousWindowClosed = true; }
    /// Whether typed keys are being held back by `expectKeys`.
    [[nodiscard]] bool expectsKeys() const { return m_expectsKeys; }
    void setAnyKeyDown(bool isDown) { m_isAnyKeyDown = isDown; }
    /// Simulates a second start of the program.
    void reopen() { Q_EMIT reopened(); }
    /// The window that was activated last.
    [[nodiscard]] QWindow *activatedWindow() const { return m_activatedWindow; }

private:
    bool m_isActive = false;
    bool m_isHidden = false;
    bool m_isAway = true;
    bool m_isAnyKeyDown = false;
    bool m_isPreviousWindowClosed = false;
    bool m_expectsKeys = false;
    QPointer<QWindow> m_activatedWindow;
};

} // namespace vesk
