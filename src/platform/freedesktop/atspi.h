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

/// Other applications' user interfaces, read over the accessibility bus. Elements are named by
/// service and path. While stopped, no element is found and every answer is nullopt.
class AtSpi final : public QObject
{
    Q_OBJECT

public:
    AtSpi();

    void start() { m_bus.start(); }
    void stop() { m_bus.stop(); }

    /// Begins a question; what is asked below for it keeps to its deadline.
    [[nodiscard]] AtSpiQuestion ask(const AtSpiQuestion::Deadlines &deadlines = {})
    {
        return AtSpiQuestion(m_bus, deadlines);
    }

    /// What has the keyboard in an application: what it last said itself, else what a search finds.
    /// The application's own element, which has no address, if the application is not on the bus. Nullopt
    /// if it is and nothing in it claims the keyboard, or if any of this could not be told in time.
    QCoro::Task<std::optional<AccessibleElement>> focusedElement(AtSpiQuestion question,
                                                                 qint64 processIdentifier);
    static QCoro::Task<std::optional<AccessibleElement>> parent(AtSpiQuestion question,
                                                                AccessibleElement element);
    /// The role's name. A field by which a terminal in a web page takes its keys is a "terminal".
    static QCoro::Task<std::optional<QString>> role(AtSpiQuestion question, AccessibleElement element);
    /// What is selected where the element is; see `readAtSpiSelection`.
    static QCoro::Task<std::optional<AtSpiSelection>> selectedText(AtSpiQuestion question,
                                                                   AccessibleElement element);
    /// The web page that the active window of an application shows; nullopt if there is none, or the
    /// application has no search of its own.
    static QCoro::Task<std::optional<AccessibleElement>> shownPage(AtSpiQuestion question,
                                                                   qint64 processIdentifier);
    /// Whether a password field has the keyboard in an application, or was the last to announce it by the
    /// time of the call. Nullopt if that could not be told, or a password field had the keyboard in the last
    /// seconds: pages move it on by themselves as soon as something is selected.
    QCoro::Task<std::optional<bool>> isInPasswordField(AtSpiQuestion question, qint64 processIdentifier);
    /// Whether the element's text can be changed; nullopt if it does not answer.
    static QCoro::Task<std::optional<bool>> isEditable(AtSpiQuestion question, AccessibleElement element);
    /// Address of the page that a document shows.
    static QCoro::Task<std::optional<QString>> documentUrl(AtSpiQuestion question, AccessibleElement element);

private:
    struct PastFocus
    {
        AtSpiReference object;
        QDeadlineTimer forgottenAt;
    };

    void onFocusEvent(const AtSpiReference &object, bool isFocused);
    void rememberPast(const AtSpiReference &object);
    /// What announced the keyboard last, in every application, and what has lost it within the last seconds.
    [[nodiscard]] QSet<AtSpiReference> recentlyFocused() const;
    /// Chromium has nothing to show until someone has asked its root for something.
    void wake(const AtSpiReference &application);
    QCoro::Task<> wakeAll();
    QCoro::Task<AtSpiFocus> focusOf(AtSpiQuestion question, AtSpiReference application);

    /// By service; only what an application has said since Vesk listens.
    QHash<QString, AtSpiReference> m_focused;
    QList<PastFocus> m_pastFocus;
    QSet<QString> m_woken;
    AtSpiBus m_bus;
};

} // namespace vesk
