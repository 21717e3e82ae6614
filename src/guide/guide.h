// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

class Accessibility;
class Defaults;

/// Whether the guide is shown, and the user's consent as shown in it. Owned by the host, whose view shows a
/// GuideView while `isShown`.
class Guide final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The host of the guide has the one.")
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
    /// Whether Vesk may read the text selected in other applications.
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY isTrustedChanged)

public:
    /// Both must outlive the guide.
    Guide(Accessibility &accessibility, Defaults &defaults, QObject *parent = nullptr);

    /// Shows the guide unprompted, unless the user has dismissed it in this or an earlier run.
    void greet();
    void show() { setShown(true); }
    /// Hides the guide for good: it no longer appears unprompted. Does nothing if it is hidden.
    Q_INVOKABLE void dismiss();
    /// Hides the guide for something more urgent. If it has never been dismissed, the next greeting shows it
    /// again.
    void setAside() { setShown(false); }
    /// Asks the user for consent; an answer changes `isTrusted`.
    Q_INVOKABLE void askForTrust();

    [[nodiscard]] bool isShown() const { return m_isShown; }
    [[nodiscard]] bool isTrusted() const;

Q_SIGNALS:
    void isShownChanged();
    void isTrustedChanged();

private:
    void setShown(bool isShown);

    Accessibility &m_accessibility;
    Defaults &m_defaults;
    bool m_isShown = false;
};

} // namespace vesk
