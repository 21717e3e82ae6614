// SPDX-License-Identifier: MIT
#pragma once

#include "platform/accessibility.h"
#include "platform/freedesktop/atspibus.h"
#include "platform/freedesktop/atspifocussearch.h"
#include "platform/freedesktop/atspiquestion.h"
#include "platform/freedesktop/atspiselection.h"

#include <QCoroTask>

#include <QDeadlineTimer>
#include <QHash>
#include <QObject>
#include <QSet>

#include <optional>

namespace vesk {

/// The role of a field whose content is not shown.
inline const QString kPasswordRole = QStringLiteral("password text");

/// Other applications' user interfaces, read over the accessibility bus. Elements are identified by service
/// and path. While stopped, no element is found and every answer is nullopt.
class AtSpi final : public QObject
{
    Q_OBJECT

public:
    AtSpi();

    void start() { m_bus.start(); }
    void stop() { m_bus.stop(); }

    /// Begins a question; all requests made for it share its deadline.
    [[nodiscard]] AtSpiQuestion ask(const AtSpiQuestion::Deadlines &deadlines = {})
    {
        return AtSpiQuestion(m_bus, deadlines);
    }

    /// The focused element of an application: the one that it announced last, otherwise the one that a search
    /// finds. Returns the application's own element, which has no address, if the application is not on the
    /// bus; nullopt if it is but none of its elements claims the focus, or if this could not be determined in
    /// time.
    QCoro::Task<std::optional<AccessibleElement>> focusedElement(AtSpiQuestion question,
                                                                 qint64 processIdentifier);
    static QCoro::Task<std::optional<AccessibleElement>> parent(AtSpiQuestion question,
                                                                AccessibleElement element);
    /// The role's name. A field through which a terminal in a web page receives its keys is a "terminal".
    static QCoro::Task<std::optional<QString>> role(AtSpiQuestion question, AccessibleElement element);
    /// The selected text at the element; see `readAtSpiSelection`.
    static QCoro::Task<std::optional<AtSpiSelection>> selectedText(AtSpiQuestion question,
                                                                   AccessibleElement element);
    /// The web page shown in an application's active window; nullopt if there is none, or the application
    /// does not offer a search.
    static QCoro::Task<std::optional<AccessibleElement>> shownPage(AtSpiQuestion question,
                                                                   qint64 processIdentifier);
    /// Whether a password field has the focus in an application, or was the last to announce it by the time
    /// of the call. nullopt if this could not be determined, or a password field had the focus within the
    /// last seconds: pages move it on themselves as soon as something is selected.
    QCoro::Task<std::optional<bool>> isInPasswordField(AtSpiQuestion question, qint64 processIdentifier);
    /// Whether the element's text can be changed; nullopt if it does not answer.
    static QCoro::Task<std::optional<bool>> isEditable(AtSpiQuestion question, AccessibleElement element);
    /// The address of the page that a document shows.
    static QCoro::Task<std::optional<QString>> documentUrl(AtSpiQuestion question, AccessibleElement element);

private:
    struct PastFocus
    {
        AtSpiReference object;
        QDeadlineTimer forgottenAt;
    };

    void onFocusEvent(const AtSpiReference &object, bool isFocused);
    void rememberPast(const AtSpiReference &object);
    /// The elements that last announced the focus, in every application, and those that have lost it within
    /// the last seconds.
    [[nodiscard]] QSet<AtSpiReference> recentlyFocused() const;
    /// Chromium exposes nothing until somebody has asked its root object for something.
    void wake(const AtSpiReference &application);
    QCoro::Task<> wakeAll();
    QCoro::Task<AtSpiFocus> focusOf(AtSpiQuestion question, AtSpiReference application);

    /// Keyed by service; contains only what applications have announced since Vesk started listening.
    QHash<QString, AtSpiReference> m_focused;
    QList<PastFocus> m_pastFocus;
    QSet<QString> m_woken;
    AtSpiBus m_bus;
};

} // namespace vesk
