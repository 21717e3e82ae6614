// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

class Accessibility;
class Defaults;

/// Whether the guide is up, and what it shows of the user's consent. Owned by the host, whose view
/// shows a GuideView while `isShown`.
class Guide final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The host of the guide has the one.")
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
    /// Whether Vesk may read the text selected in other applications.
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY isTrustedChanged)

public:
    /// Both have to outlive the guide.
    Guide(Accessibility &accessibility, Defaults &defaults, QObject *parent = nullptr);

    /// Shows the guide by itself, unless the user has dismissed it before, in this run or an earlier one.
    void greet();
    void show() { setShown(true); }
    /// Hides the guide for good: it does not come up by itself any more. Does nothing if it is hidden.
    Q_INVOKABLE void dismiss();
    /// Hides the guide for something more urgent. If it was never dismissed, the next greeting shows it
    /// again.
    void setAside() { setShown(false); }
    /// Has the user asked for the consent; the answer, if it comes, changes `isTrusted`.
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
