// SPDX-License-Identifier: MIT
#pragma once

#include "platform/accessibility.h"
#include "platform/clock.h"

#include <QHash>

#include <chrono>

namespace vesk {

/// Other applications' user interfaces, as set by a test.
class MemoryAccessibility final : public Accessibility
{
    Q_OBJECT

public:
    /// One element, as set by a test.
    struct Element
    {
        QString role;
        std::optional<QString> url;
        std::optional<AccessibleElement> parent;
    };

    explicit MemoryAccessibility(Clock &clock);

    [[nodiscard]] bool isProcessTrusted() const override { return m_isTrusted; }
    void askForTrust() override { ++m_askCount; }
    [[nodiscard]] std::optional<QString> focusedWindowTitle(qint64 processIdentifier) const override;
    QCoro::Task<std::optional<AccessibleElement>> copyElement(AccessibleElement element,
                                                              ElementAttribute attribute) override;
    QCoro::Task<std::optional<QString>> copyString(AccessibleElement element,
                                                   StringAttribute attribute) override;
    QCoro::Task<SelectedText> selectedText() override;

    void setTrusted(bool isTrusted);
    [[nodiscard]] int askCount() const { return m_askCount; }
    void setFocusedWindowTitle(qint64 processIdentifier, const QString &title);
    /// Adds an element, or replaces the one with the same name.
    void setElement(const AccessibleElement &name, const Element &element);
    /// Sets the element that has the focus, for the system-wide element and for the element's application;
    /// nullopt for none.
    void setFocusedElement(const std::optional<AccessibleElement> &name) { m_focused = name; }
    /// Sets what is selected in the element that has the focus.
    void setSelectedText(const SelectedText &selected) { m_selected = selected; }
    /// Sets the page that every application shows; nullopt for none.
    void setShownPage(const std::optional<AccessibleElement> &name) { m_shownPage = name; }
    /// Makes every answer take this long. With zero, answers come at once, without suspending.
    void setDelay(std::chrono::milliseconds delay) { m_delay = delay; }

private:
    Clock &m_clock;
    bool m_isTrusted = true;
    int m_askCount = 0;
    std::chrono::milliseconds m_delay{0};
    QHash<qint64, QString> m_titles;
    QHash<QString, Element> m_elements;
    std::optional<AccessibleElement> m_focused;
    std::optional<AccessibleElement> m_shownPage;
    SelectedText m_selected;
};

} // namespace vesk
