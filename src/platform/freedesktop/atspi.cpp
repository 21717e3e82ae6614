// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspi.h"

#include "platform/freedesktop/atspiterminal.h"
#include "platform/logging.h"

#include <QCoroTimer>

#include <QPointer>

#include <vector>

namespace vesk {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");

/// An application that has only just been woken or focused may not report it yet.
constexpr auto kRetryPeriod = 25ms;
constexpr int kMaximumRetries = 2;

AtSpiReference referenceOf(const AccessibleElement &element)
{
    return {.service = element.address.section(u' ', 0, 0), .path = element.address.section(u' ', 1)};
}

AccessibleElement elementOf(qint64 processIdentifier, const AtSpiReference &reference)
{
    return {.processIdentifier = processIdentifier, .address = reference.service + u' ' + reference.path};
}

/// The root objects that this process has on the bus; each toolkit in a process may have its own. nullopt if
/// anything did not answer, because the requested process may be among those.
QCoro::Task<std::optional<QList<AtSpiReference>>> applicationsOf(AtSpiQuestion question,
                                                                 qint64 processIdentifier)
{
    const std::optional<QList<AtSpiReference>> roots = co_await question.children(AtSpiBus::registry());
    if (!roots)
        co_return std::nullopt;
    std::vector<QCoro::Task<std::optional<qint64>>> owners;
    for (const AtSpiReference &root : *roots)
        owners.push_back(question.processIdentifier(root.service));
    QList<AtSpiReference> own;
    for (size_t index = 0; index < owners.size(); ++index) {
        const std::optional<qint64> owner = co_await owners[index];
        if (owner == processIdentifier)
            own.append(roots->at(static_cast<qsizetype>(index)));
    }
    if (own.isEmpty() && question.isSilent())
        co_return std::nullopt;
    co_return own;
}

/// The current state of an object that announced the focus; no object if it is gone.
QCoro::Task<AtSpiFocus> verify(AtSpiQuestion question, AtSpiReference object)
{
    AtSpiFocus focus;
    const QCoro::Task<std::optional<AtSpiStates>> askStates = question.states(object);
    const QCoro::Task<std::optional<bool>> askIsText = question.isText(object);
    const std::optional<AtSpiStates> states = co_await askStates;
    const std::optional<bool> isText = co_await askIsText;
    if (!states)
        co_return focus;
    focus.object = object;
    focus.isText = isText.value_or(false);
    focus.isComplete = states->test(atspistate::kFocused);
    co_return focus;
}

} // namespace

AtSpi::AtSpi()
{
    connect(&m_bus, &AtSpiBus::focusEvent, this, &AtSpi::onFocusEvent);
    connect(&m_bus, &AtSpiBus::connected, this, &AtSpi::wakeAll);
    connect(&m_bus, &AtSpiBus::applicationAdded, this, &AtSpi::wake);
    connect(&m_bus, &AtSpiBus::applicationRemoved, this, [this](const AtSpiReference &root) {
        m_focused.remove(root.service);
        m_woken.remove(root.service);
    });
    connect(&m_bus, &AtSpiBus::disconnected, this, [this] {
        m_focused.clear();
        m_pastFocus.clear();
        m_woken.clear();
    });
}

QCoro::Task<std::optional<AccessibleElement>> AtSpi::focusedElement(AtSpiQuestion question,
                                                                    qint64 processIdentifier)
{
    const QPointer<AtSpi> self(this);
    const AccessibleElement applicationItself = Accessibility::applicationElement(processIdentifier);
    const std::optional<QList<AtSpiReference>> applications =
        co_await applicationsOf(question, processIdentifier);
    if (!applications)
        co_return std::nullopt;
    qCDebug(freedesktopLog) << "process" << processIdentifier << "roots on the accessibility bus"
                            << applications->size();
    if (applications->isEmpty())
        co_return applicationItself;
    std::optional<AtSpiReference> best;
    for (const AtSpiReference &application : *applications) {
        if (self.isNull())
            co_return std::nullopt;
        const AtSpiFocus focus = co_await focusOf(question, application);
        if (focus.object && focus.isText)
            co_return elementOf(processIdentifier, *focus.object);
        if (!best)
            best = focus.object;
    }
    if (!best)
        co_return std::nullopt;
    co_return elementOf(processIdentifier, *best);
}

QCoro::Task<std::optional<AccessibleElement>> AtSpi::parent(AtSpiQuestion question, AccessibleElement element)
{
    const std::optional<AtSpiReference> reference = co_await question.parent(referenceOf(element));
    if (!reference)
        co_return std::nullopt;
    co_return elementOf(element.processIdentifier, *reference);
}

QCoro::Task<std::optional<QString>> AtSpi::role(AtSpiQuestion question, AccessibleElement element)
{
    const AtSpiReference reference = referenceOf(element);
    const std::optional<QString> role = co_await question.roleName(reference);
    if (role == "entry"_L1) {
        const bool isTerminal = co_await isWebTerminal(question, reference);
        if (isTerminal)
            co_return u"terminal"_s;
    }
    co_return role;
}

QCoro::Task<std::optional<AtSpiSelection>> AtSpi::selectedText(AtSpiQuestion question,
                                                               AccessibleElement element)
{
    return readAtSpiSelection(question, referenceOf(element));
}

QCoro::Task<std::optional<AccessibleElement>> AtSpi::shownPage(AtSpiQuestion question,
                                                               qint64 processIdentifier)
{
    const std::optional<QList<AtSpiReference>> applications =
        co_await applicationsOf(question, processIdentifier);
    const QList<AtSpiReference> roots = applications.value_or(QList<AtSpiReference>());
    for (const AtSpiReference &application : roots) {
        const std::optional<AtSpiReference> page = co_await searchShownPage(question, application);
        if (page)
            co_return elementOf(processIdentifier, *page);
    }
    co_return std::nullopt;
}

QCoro::Task<std::optional<bool>> AtSpi::isInPasswordField(AtSpiQuestion question, qint64 processIdentifier)
{
    const QPointer<AtSpi> self(this);
    QSet<AtSpiReference> focused(m_focused.cbegin(), m_focused.cend());
    QSet<AtSpiReference> past = recentlyFocused();
    const std::optional<AccessibleElement> element = co_await focusedElement(question, processIdentifier);
    if (self.isNull())
        co_return std::nullopt;
    // By now, whatever the application announced before its answers has arrived.
    past.unite(recentlyFocused());
    bool isKnown = element && !element->address.isEmpty();
    if (isKnown)
        focused.insert(referenceOf(*element));
    const QSet<AtSpiReference> all = focused | past;
    for (const AtSpiReference &object : all) {
        const std::optional<qint64> process = co_await question.processIdentifier(object.service);
        if (process && process != processIdentifier)
            continue;
        const std::optional<QString> role = co_await question.roleName(object);
        if (role == kPasswordRole && focused.contains(object))
            co_return true;
        isKnown = isKnown && role && role != kPasswordRole;
    }
    co_return isKnown ? std::optional(false) : std::nullopt;
}

QCoro::Task<std::optional<bool>> AtSpi::isEditable(AtSpiQuestion question, AccessibleElement element)
{
    const std::optional<AtSpiStates> states = co_await question.states(referenceOf(element));
    if (!states)
        co_return std::nullopt;
    co_return states->test(atspistate::kEditable);
}

QCoro::Task<std::optional<QString>> AtSpi::documentUrl(AtSpiQuestion question, AccessibleElement element)
{
    // Firefox uses the first name for its page's address, Chromium the second.
    const QString names[] = {u"DocURL"_s, u"URI"_s};
    const AtSpiReference document = referenceOf(element);
    for (const QString &name : names) {
        const QVariantList arguments(1, name);
        const std::optional<QVariantList> reply =
            co_await question.call(document, u"org.a11y.atspi.Document"_s, u"GetAttributeValue"_s, arguments);
        const QString url = reply ? reply->value(0).toString() : QString();
        if (!url.isEmpty())
            co_return url;
    }
    co_return std::nullopt;
}

void AtSpi::onFocusEvent(const AtSpiReference &object, bool isFocused)
{
    // Events of the element that loses the focus may arrive after those of the one that gains it, so a loss
    // only clears the element itself.
    const auto last = m_focused.constFind(object.service);
    const bool isLast = last != m_focused.cend() && *last == object;
    if (isFocused == isLast)
        return;
    if (last != m_focused.cend())
        rememberPast(*last);
    if (isFocused)
        m_focused.insert(object.service, object);
    else
        m_focused.remove(object.service);
}

void AtSpi::rememberPast(const AtSpiReference &object)
{
    // Longer than claiming PRIMARY, or hearing of the claim, takes on a busy machine.
    constexpr auto kRecent = 3s;
    // A page can move the focus as often as it likes.
    constexpr qsizetype kMaximum = 50;
    m_pastFocus.removeIf(
        [&object](const PastFocus &past) { return past.object == object || past.forgottenAt.hasExpired(); });
    if (m_pastFocus.size() == kMaximum)
        m_pastFocus.removeFirst();
    m_pastFocus.append(PastFocus{.object = object, .forgottenAt = QDeadlineTimer(kRecent)});
}

QSet<AtSpiReference> AtSpi::recentlyFocused() const
{
    QSet<AtSpiReference> objects(m_focused.cbegin(), m_focused.cend());
    for (const PastFocus &past : m_pastFocus) {
        if (!past.forgottenAt.hasExpired())
            objects.insert(past.object);
    }
    return objects;
}

void AtSpi::wake(const AtSpiReference &application)
{
    if (m_woken.contains(application.service))
        return;
    m_woken.insert(application.service);
    // The answer does not matter.
    ask().call(application, kAccessible, u"GetAttributes"_s);
}

QCoro::Task<> AtSpi::wakeAll()
{
    const QPointer<AtSpi> self(this);
    const std::optional<QList<AtSpiReference>> all = co_await ask().children(AtSpiBus::registry());
    if (self.isNull() || !all)
        co_return;
    for (const AtSpiReference &application : *all)
        wake(application);
}

QCoro::Task<AtSpiFocus> AtSpi::focusOf(AtSpiQuestion question, AtSpiReference application)
{
    const QPointer<AtSpi> self(this);
    wake(application);
    AtSpiFocus focus;
    AtSpiFocus announced;
    for (int retries = 0;; ++retries) {
        // An announcement can be out of date, since not every focus change is announced, and it can be for a
        // container.
        const std::optional<AtSpiReference> object = m_focused.contains(application.service)
                                                         ? std::optional(m_focused.value(application.service))
                                                         : std::nullopt;
        if (object) {
            announced = co_await verify(question, *object);
            if (announced.isComplete && announced.isText)
                co_return announced;
        }
        focus = co_await searchFocus(question, application);
        const bool isSettled =
            focus.object || (announced.object && announced.isComplete) || !focus.isComplete;
        if (isSettled || retries == kMaximumRetries || question.isOver())
            break;
        co_await QCoro::sleepFor(kRetryPeriod);
        if (self.isNull())
            co_return AtSpiFocus();
    }
    if (focus.object && (focus.isText || !announced.isComplete))
        co_return focus;
    if (announced.object)
        co_return announced;
    co_return focus;
}

} // namespace vesk
