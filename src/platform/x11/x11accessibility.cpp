// SPDX-License-Identifier: MIT
#include "platform/x11/x11accessibility.h"

#include "platform/freedesktop/consent.h"
#include "platform/logging.h"
#include "platform/x11/keytaker.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11workspace.h"
#include "platform/x11/xreply.h"

#include <QCoroTimer>

#include <QDeadlineTimer>
#include <QPointer>

#include <algorithm>

namespace vesk {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString kTerminalRole = u"terminal"_s;

/// Whether such an application is never asked to copy, so that only PRIMARY is left.
bool hasOnlyPrimary(KeyTaker taker)
{
    return taker == KeyTaker::Terminal || taker == KeyTaker::OwnKeys || taker == KeyTaker::Emacs;
}

/// The text without white space and without placeholders for embedded objects.
QString inkOf(const QString &text)
{
    QString ink;
    ink.reserve(text.size());
    for (const QChar unit : text) {
        if (!unit.isSpace() && unit != QChar::ObjectReplacementCharacter)
            ink.append(unit);
    }
    return ink;
}

/// Whether PRIMARY agrees with what the application reports as selected, as far as it reports it.
bool isConfirmed(const QString &primary, const AtSpiSelection &own)
{
    return own.isPart ? inkOf(primary).contains(inkOf(own.text))
                      : primary == own.text || inkOf(primary) == inkOf(own.text);
}

/// Whether a text is what toolkits show instead of a password's letters.
bool isMask(const QString &text)
{
    static const QString masks = u"\u2022\u25cf\u26ab\u2217*"_s;
    return !text.isEmpty() && masks.contains(text.front())
           && std::ranges::all_of(text, [&text](QChar unit) { return unit == text.front(); });
}

} // namespace

X11Accessibility::X11Accessibility(X11Connection &connection, RawInput &input, X11Workspace &workspace,
                                   Consent &consent, const AtSpiQuestion::Deadlines &deadlines)
    : m_input(input)
    , m_workspace(workspace)
    , m_consent(consent)
    , m_primary(connection)
    , m_standing({.connection = connection, .input = input, .workspace = workspace, .primary = m_primary})
    , m_deadlines(deadlines)
{
    connect(&m_primary, &PrimarySelection::claimed, this, &X11Accessibility::noteOrigin);
    connect(&consent, &Consent::changed, this, [this] {
        followConsent();
        Q_EMIT trustChanged();
    });
    followConsent();
}

bool X11Accessibility::isProcessTrusted() const
{
    return m_consent.isGiven();
}

std::optional<QString> X11Accessibility::focusedWindowTitle(qint64 processIdentifier) const
{
    const std::optional<xcb_window_t> window = m_workspace.activeWindow();
    if (!isProcessTrusted() || !window || m_workspace.processOf(*window).value_or(0) != processIdentifier)
        return std::nullopt;
    const QString title = m_workspace.titleOf(*window);
    return title.isEmpty() ? std::nullopt : std::optional(title);
}

QCoro::Task<std::optional<AccessibleElement>> X11Accessibility::copyElement(AccessibleElement element,
                                                                            ElementAttribute attribute)
{
    if (!isProcessTrusted())
        co_return std::nullopt;
    if (attribute == ElementAttribute::Parent) {
        if (element.address.isEmpty())
            co_return std::nullopt;
        co_return co_await AtSpi::parent(m_atSpi.ask(), element);
    }
    qint64 process = element.processIdentifier;
    if (process == 0) {
        const std::optional<RunningApplication> frontmost = m_workspace.frontmostApplication();
        if (!frontmost)
            co_return std::nullopt;
        process = frontmost->processIdentifier;
    }
    if (attribute == ElementAttribute::ShownPage)
        co_return co_await AtSpi::shownPage(m_atSpi.ask(), process);
    co_return co_await m_atSpi.focusedElement(m_atSpi.ask(), process);
}

QCoro::Task<std::optional<QString>> X11Accessibility::copyString(AccessibleElement element,
                                                                 StringAttribute attribute)
{
    if (!isProcessTrusted())
        co_return std::nullopt;
    if (element.address.isEmpty())
        co_return std::nullopt;
    if (attribute == StringAttribute::Url)
        co_return co_await AtSpi::documentUrl(m_atSpi.ask(), element);
    co_return co_await AtSpi::role(m_atSpi.ask(), element);
}

void X11Accessibility::followConsent()
{
    m_input.setListening(isProcessTrusted());
    if (isProcessTrusted())
        m_atSpi.start();
    else
        m_atSpi.stop();
}

QCoro::Task<SelectedText> X11Accessibility::selectedText()
{
    using Finding = SelectedText::Finding;
    const QPointer<X11Accessibility> self(this);
    const std::optional<xcb_window_t> window = m_workspace.reportedWindow();
    if (!isProcessTrusted() || !window)
        co_return SelectedText();
    const std::optional<qint64> process = m_workspace.processOf(*window);
    const KeyTaker taker = m_workspace.keyTakerOf(*window);
    if (taker == KeyTaker::PasswordPrompt)
        co_return SelectedText{.finding = Finding::Nothing};
    // Before any wait, during which the user may press something.
    bool isClaimed = m_standing.isFresh(*window);
    SelectedText unknown;
    // If something was selected a moment ago, an answer is worth a longer wait.
    AtSpiQuestion::Deadlines deadlines = m_deadlines;
    if (isClaimed)
        deadlines = {.question = 2 * m_deadlines.question, .call = 3 * m_deadlines.call};
    const AtSpiQuestion search = m_atSpi.ask(deadlines);
    std::optional<AccessibleElement> focused;
    if (process)
        focused = co_await m_atSpi.focusedElement(search, *process);
    if (self.isNull())
        co_return SelectedText();
    // A busy application may claim what was selected before the key only by the time it answers.
    isClaimed = isClaimed || m_standing.isFresh(*window);
    unknown.isClaimed = isClaimed && !isPrimarySecret();
    const AtSpiQuestion question = m_atSpi.ask(deadlines);
    const bool isOnBus = focused && !focused->address.isEmpty();
    std::optional<QString> role;
    std::optional<AtSpiSelection> own;
    if (isOnBus)
        role = co_await AtSpi::role(question, *focused);
    if (self.isNull() || !isProcessTrusted())
        co_return SelectedText();
    if (role == kPasswordRole)
        co_return SelectedText{.finding = Finding::Nothing};
    if (role && role != kTerminalRole && unknown.isClaimed && m_harmless == m_primary.claim().number) {
        const std::optional<QString> text = co_await harmlessText(question, *focused);
        if (text)
            co_return SelectedText{.finding = Finding::Selected, .text = *text, .isClaimed = true};
        if (self.isNull() || !isProcessTrusted())
            co_return SelectedText();
    }
    if (role)
        own = co_await AtSpi::selectedText(question, *focused);
    if (self.isNull() || !isProcessTrusted())
        co_return SelectedText();
    const bool isSilent = search.isSilent() || question.isSilent();
    SelectedText found;
    if (hasOnlyPrimary(taker) || role == kTerminalRole)
        found = co_await terminalText(*window, own, isSilent);
    else if (own)
        found = co_await confirmedText(*own, isClaimed);
    else
        found = unknown;
    if (self.isNull() || !isProcessTrusted())
        co_return SelectedText();
    found.isSilent = isSilent;
    qCDebug(x11Log) << "selection found:" << (found.finding == Finding::Selected) << "length"
                    << found.text.size() << "application on the bus:" << isOnBus
                    << "PRIMARY fresh:" << isClaimed << "silent:" << isSilent;
    co_return found;
}

QCoro::Task<SelectedText> X11Accessibility::terminalText(xcb_window_t window,
                                                         std::optional<AtSpiSelection> own, bool isSilent)
{
    using Finding = SelectedText::Finding;
    const QPointer<X11Accessibility> self(this);
    // For a long selection, the bus only knows the visible part.
    const bool isSelected = own && !own->text.isEmpty() && m_standing.isOfApplication(window);
    // An application that does not report its focused object may show a password field, but not where it
    // draws its text.
    bool isHighlighted = isSelected;
    if (!isHighlighted && (!isSilent || m_standing.isInside(window)))
        isHighlighted = co_await m_standing.stands(window);
    if (self.isNull())
        co_return SelectedText();
    const bool stands = isHighlighted && !isPrimarySecret();
    if (stands) {
        const std::optional<QString> text = co_await m_primary.text();
        if (text)
            co_return SelectedText{.finding = Finding::Selected, .text = *text};
    }
    if (own && !own->text.isEmpty())
        co_return SelectedText{.finding = Finding::Selected, .text = own->text};
    // If `stands`, something is highlighted, but its owner did not provide it.
    co_return SelectedText{.finding = own && !stands ? Finding::Nothing : Finding::Unknown,
                           .isClaimed = stands};
}

QCoro::Task<SelectedText> X11Accessibility::confirmedText(AtSpiSelection own, bool isClaimed)
{
    using Finding = SelectedText::Finding;
    const bool isUsable = isClaimed && !isPrimarySecret();
    const SelectedText unknown{.isClaimed = isUsable};
    const SelectedText itself{.finding = Finding::Selected, .text = own.text, .isClaimed = isUsable};
    if (own.text.isEmpty())
        co_return isUsable ? unknown : SelectedText{.finding = Finding::Nothing};
    // A field that shows bullets may be a password field that does not say so, and PRIMARY has them too if
    // the whole page is selected. Anything else that looks like this can be copied.
    if (isMask(own.text.trimmed()))
        co_return unknown;
    std::optional<QString> primary;
    if (isUsable)
        primary = co_await m_primary.text();
    // The application's own text is better: the bus drops or adds white space.
    if (primary && isConfirmed(*primary, own))
        co_return SelectedText{.finding = Finding::Selected, .text = *primary, .isClaimed = true};
    const bool isDoubtful = own.isPart || (own.isAssembled && primary);
    co_return isDoubtful ? unknown : itself;
}

QCoro::Task<std::optional<QString>> X11Accessibility::harmlessText(AtSpiQuestion question,
                                                                   AccessibleElement element)
{
    const QPointer<X11Accessibility> self(this);
    // A field knows its selection better: PRIMARY may come from the surrounding page.
    const std::optional<bool> isEditable = co_await AtSpi::isEditable(question, element);
    if (self.isNull() || isEditable.value_or(true))
        co_return std::nullopt;
    const std::optional<QString> text = co_await m_primary.text();
    // If the whole page is selected, PRIMARY has a password field's bullets in it.
    if (self.isNull() || !isProcessTrusted() || (text && isMask(text->trimmed())))
        co_return std::nullopt;
    co_return text;
}

QCoro::Task<> X11Accessibility::noteOrigin()
{
    const PrimarySelection::Claim claim = m_primary.claim();
    if (!isProcessTrusted() || claim.owner == XCB_WINDOW_NONE)
        co_return;
    const std::optional<qint64> process = m_workspace.processOf(claim.owner);
    if (!process)
        co_return;
    const QPointer<X11Accessibility> self(this);
    // Nobody waits for this. A busy application, or one whose accessibility is just starting, does not answer
    // at first. After this time, a password field that has since lost the focus is forgotten.
    const QDeadlineTimer recent(2s);
    while (!recent.hasExpired() && m_primary.claim().number == claim.number) {
        const AtSpiQuestion question = m_atSpi.ask({.question = 1s, .call = 500ms});
        const std::optional<bool> isSecret = co_await m_atSpi.isInPasswordField(question, *process);
        if (self.isNull())
            co_return;
        if (isSecret) {
            (*isSecret ? m_secret : m_harmless) = claim.number;
            co_return;
        }
        co_await QCoro::sleepFor(100ms);
        if (self.isNull())
            co_return;
    }
}

} // namespace vesk
