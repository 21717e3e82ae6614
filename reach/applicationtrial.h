// SPDX-License-Identifier: MIT
#pragma once

#include "reach/applicationcase.h"
#include "reach/documents.h"
#include "virtualdesktop/clipboardholder.h"
#include "virtualdesktop/virtualdesktop.h"

#include <QElapsedTimer>

namespace vesk {

/// Puts an application in front of a user of Vesk, on a separate desktop, and finds out which of Vesk's
/// promises hold there.
class ApplicationTrial final
{
public:
    /// `pictures` is a folder for pictures of failures; if empty, none are taken.
    ApplicationTrial(ApplicationCase application, QString pictures);
    ~ApplicationTrial();

    /// What is wrong with each promise; empty if it holds. Checks that do not apply to the application are
    /// missing.
    using Findings = QMap<Check, QString>;

    /// Runs all checks. nullopt if the application could not be used at all; `problem` then says why.
    [[nodiscard]] std::optional<Findings> run(QString &problem);

private:
    enum class Outcome {
        Kept,
        Fallback,
        None
    };

    [[nodiscard]] QString setUp();
    [[nodiscard]] bool isReady();
    /// Runs the command `vesk` until it exits; returns whether it succeeded.
    [[nodiscard]] bool command(const QStringList &words);
    [[nodiscard]] bool bringForward();
    void perform(const ApplicationCase::Keys &keys);
    void selectAll();
    void deselect();

    /// Holds the hot key for this long, and returns the result.
    [[nodiscard]] Outcome capture(std::chrono::milliseconds hold);
    void dismissFallback();
    /// All notes and prompts.
    [[nodiscard]] QStringList everythingKept() const;
    [[nodiscard]] std::optional<Window> veskWindow() const;

    void checkWhole();
    void checkPart();
    void checkNothing();
    /// Selects a password in every way, and captures each selection in every way.
    void checkSecret();
    void checkSource();
    void checkClipboard();
    void checkUntouched();
    void checkPaste();

    /// The content of the application's document as the user would find it.
    [[nodiscard]] QString contents();
    [[nodiscard]] QString wholeText() const;
    void judge(Check check, bool holds, const QString &otherwise);

    const ApplicationCase m_application;
    const QString m_pictures;
    Findings m_findings;
    std::unique_ptr<VirtualDesktop> m_desktop;
    std::unique_ptr<SampleDocument> m_document;
    std::unique_ptr<ChildProcess> m_process;
    std::unique_ptr<ClipboardHolder> m_clipboard;
    std::unique_ptr<ChildProcess> m_vesk;
    Window m_window;
    QElapsedTimer m_sinceCapture;
};

} // namespace vesk
