// SPDX-License-Identifier: MIT
#include "capture/pageaddress.h"

#include "notes/markup.h"
#include "platform/accessibility.h"
#include "platform/clock.h"

#include <QUrl>

#include <algorithm>
#include <coroutine>
#include <memory>
#include <utility>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kDeadline{300};
constexpr int kMaximumDepth = 40;

/// The search and the deadline race for this; whichever settles it first lets the caller continue.
struct Answer
{
    bool isSettled = false;
    std::optional<QString> address;
    std::coroutine_handle<> waiting;

    void settle(const std::optional<QString> &found)
    {
        if (isSettled)
            return;
        isSettled = true;
        address = found;
        if (waiting)
            std::exchange(waiting, {}).resume();
    }
};

/// Suspends until the answer is settled.
struct Settling
{
    std::shared_ptr<Answer> answer;

    [[nodiscard]] bool await_ready() const noexcept { return answer->isSettled; }
    void await_suspend(std::coroutine_handle<> handle) const { answer->waiting = handle; }
    void await_resume() const noexcept {}
};

std::optional<QString> webAddress(const std::optional<QString> &url)
{
    const QString text = markup::trimmed(url.value_or(QString()));
    const QString scheme = text.left(std::max(text.indexOf(u':'), qsizetype{0}));
    if (scheme != u"http"_s && scheme != u"https"_s)
        return std::nullopt;
    return text;
}

QCoro::Task<> settleAtDeadline(Clock *clock, std::shared_ptr<Answer> answer)
{
    co_await clock->sleep(kDeadline);
    answer->settle(std::nullopt);
}

QCoro::Task<> searchShown(Accessibility *accessibility, qint64 processIdentifier,
                          std::shared_ptr<Answer> answer)
{
    const std::optional<AccessibleElement> page = co_await accessibility->copyElement(
        Accessibility::applicationElement(processIdentifier), Accessibility::ElementAttribute::ShownPage);
    std::optional<QString> url;
    if (page && !answer->isSettled)
        url = co_await accessibility->copyString(*page, Accessibility::StringAttribute::Url);
    answer->settle(webAddress(url));
}

QCoro::Task<> search(Accessibility *accessibility, qint64 processIdentifier, std::shared_ptr<Answer> answer)
{
    // The outermost web area is the page. One inside it is a frame, whose address the user does not know.
    std::optional<AccessibleElement> page;
    std::optional<AccessibleElement> element =
        co_await accessibility->copyElement(Accessibility::applicationElement(processIdentifier),
                                            Accessibility::ElementAttribute::FocusedElement);
    for (int depth = 1; element && !answer->isSettled; ++depth) {
        const std::optional<QString> role =
            co_await accessibility->copyString(*element, Accessibility::StringAttribute::Role);
        if (role && markup::trimmed(*role) == Accessibility::kWebAreaRole)
            page = element;
        if (answer->isSettled || depth == kMaximumDepth)
            break;
        element = co_await accessibility->copyElement(*element, Accessibility::ElementAttribute::Parent);
    }
    std::optional<QString> url;
    if (page && !answer->isSettled)
        url = co_await accessibility->copyString(*page, Accessibility::StringAttribute::Url);
    answer->settle(webAddress(url));
}

QCoro::Task<std::optional<QString>> settled(Clock *clock, std::shared_ptr<Answer> answer)
{
    if (!answer->isSettled)
        settleAtDeadline(clock, answer);
    const Settling settling{answer};
    co_await settling;
    co_return std::as_const(answer->address);
}

/// Whether a text could be an address without its scheme. Most texts could not, and need no search.
bool isPerhapsAddress(const QString &text)
{
    const bool isWord = std::ranges::none_of(text, [](QChar unit) { return unit.isSpace(); });
    return isWord && !text.contains("://"_L1)
           && (text.contains(u'.') || text.contains(u':') || text.contains(u'/')
               || text.startsWith("localhost"_L1));
}

} // namespace

QCoro::Task<std::optional<QString>> readPageAddress(Accessibility *accessibility, Clock *clock,
                                                    qint64 processIdentifier)
{
    const auto answer = std::make_shared<Answer>();
    search(accessibility, processIdentifier, answer);
    return settled(clock, answer);
}

QCoro::Task<std::optional<QString>> wholeAddress(Accessibility *accessibility, Clock *clock,
                                                 qint64 processIdentifier, QString text)
{
    if (!isPerhapsAddress(text))
        co_return std::nullopt;
    // Inside a page, such a text is ordinary text.
    if (co_await readPageAddress(accessibility, clock, processIdentifier))
        co_return std::nullopt;
    const auto answer = std::make_shared<Answer>();
    searchShown(accessibility, processIdentifier, answer);
    const std::optional<QString> address = co_await settled(clock, answer);
    if (!address || !isShownForm(text, *address))
        co_return std::nullopt;
    co_return address;
}

bool isShownForm(const QString &text, const QString &address)
{
    const QUrl url(address);
    const QString decoded = url.toString(QUrl::RemoveScheme).sliced(2);
    for (QString shown :
         {address.section("://"_L1, 1), decoded, url.toDisplayString().section("://"_L1, 1)}) {
        if (url.path().size() <= 1 && !url.hasQuery() && !url.hasFragment() && shown.endsWith(u'/'))
            shown.chop(1);
        const QString given = text.endsWith(u'/') && !shown.contains(u'/') ? text.chopped(1) : text;
        const bool isShort = shown.startsWith("www."_L1) && given == shown.sliced(4);
        if (given == shown || isShort)
            return true;
    }
    return false;
}

} // namespace vesk
