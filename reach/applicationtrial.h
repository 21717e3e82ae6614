// SPDX-License-Identifier: MIT
#pragma once

#include "reach/applicationcase.h"
#include "reach/documents.h"
#include "virtualdesktop/clipboardholder.h"
#include "virtualdesktop/virtualdesktop.h"

#include <QElapsedTimer>

namespace vesk {

/// Puts one application in front of a user who uses Vesk, on a desktop of its own, and finds out what
/// of Vesk's promises holds there.
class ApplicationTrial final
{
public:
    /// `pictures` is a folder for pictures of what went wrong; none are taken for an empty one.
    ApplicationTrial(ApplicationCase application, QString pictures);
    ~ApplicationTrial();

    /// What is wrong with each promise, empty for what holds. Those that the application has no use for
    /// are not in it.
    using Findings = QMap<Check, QString>;

    /// Makes all checks. None if the application could not be used at all; `problem` then says why.
    [[nodiscard]] std::optional<Findings> run(QString &problem);

private:
    enum class Outcome {
        Kept,
        Fallback,
        None
    };

    [[nodiscard]] QString setUp();
    [[nodiscard]] bool isReady();
    /// Runs the command `vesk` to its end; whether it did so with success.
    [[nodiscard]] bool command(const QStringList &words);
    [[nodiscard]] bool bringForward();
    void perform(const ApplicationCase::Keys &keys);
    void selectAll();
    void deselect();

    /// Presses the hot key for as long, and tells what came of it.
    [[nodiscard]] Outcome capture(std::chrono::milliseconds hold);
    void dismissFallback();
    /// All notes and prompts.
    [[nodiscard]] QStringList everythingKept() const;
    [[nodiscard]] std::optional<Window> veskWindow() const;

    void checkWhole();
    void checkPart();
    void checkNothing();
    /// Selects a password in every way, and has it captured in every way.
    void checkSecret();
    void checkSource();
    void checkClipboard();
    void checkUntouched();
    void checkPaste();

    /// What the user would find in the application's document.
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
