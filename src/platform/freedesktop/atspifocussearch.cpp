// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspifocussearch.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QSet>

#include <algorithm>
#include <limits>
#include <vector>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// The criteria of Collection.GetMatches: objects in all of these states, with all of these interfaces and
/// with one of these roles. An empty list matches everything.
struct MatchRule
{
    QList<int> states;
    QStringList interfaces;
    QList<int> roles = {};
};

QDBusArgument &operator<<(QDBusArgument &argument, const MatchRule &rule)
{
    constexpr int kMatchAll = 1;
    constexpr int kMatchAny = 2;
    const QMap<QString, QString> noAttributes;
    argument.beginStructure();
    argument << rule.states << kMatchAll << noAttributes << kMatchAny << rule.roles << kMatchAny
             << rule.interfaces << kMatchAll << false;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, MatchRule &rule)
{
    // Rules are only ever sent, but Qt requires both directions.
    Q_UNUSED(rule)
    return argument;
}

} // namespace
} // namespace vesk

Q_DECLARE_METATYPE(vesk::MatchRule)

namespace vesk {

namespace {

using StringMap = QMap<QString, QString>;

/// How many objects the walk asks at once: enough to keep the application busy, few enough that the last of
/// them is answered in time.
constexpr qsizetype kPipelined = 32;
/// The walk stops after this many objects of an application.
constexpr qsizetype kMaximumObjects = 3000;

AtSpiQuestion::Reply findMatches(const AtSpiQuestion &question, const AtSpiReference &frame,
                                 const MatchRule &rule)
{
    qDBusRegisterMetaType<QList<int>>();
    qDBusRegisterMetaType<StringMap>();
    qDBusRegisterMetaType<MatchRule>();
    constexpr uint kCanonicalOrder = 1;
    constexpr int kNoLimit = 0;
    return question.call(frame, u"org.a11y.atspi.Collection"_s, u"GetMatches"_s,
                         {QVariant::fromValue(rule), kCanonicalOrder, kNoLimit, true});
}

AtSpiQuestion::Reply findFocused(const AtSpiQuestion &question, const AtSpiReference &frame,
                                 const QStringList &interfaces)
{
    return findMatches(question, frame, {.states = {1 << atspistate::kFocused, 0}, .interfaces = interfaces});
}

struct Frames
{
    QList<AtSpiReference> active;
    QList<AtSpiReference> others;
};

/// The windows of an application; nullopt if it does not answer.
QCoro::Task<std::optional<Frames>> findFrames(AtSpiQuestion question, AtSpiReference application)
{
    const std::optional<QList<AtSpiReference>> all = co_await question.children(application);
    if (!all)
        co_return std::nullopt;
    std::vector<QCoro::Task<std::optional<AtSpiStates>>> pending;
    for (const AtSpiReference &frame : *all)
        pending.push_back(question.states(frame));
    Frames frames;
    for (size_t index = 0; index < pending.size(); ++index) {
        const std::optional<AtSpiStates> states = co_await pending[index];
        const bool isActive = states && states->test(atspistate::kActive);
        (isActive ? frames.active : frames.others).append(all->at(static_cast<qsizetype>(index)));
    }
    co_return frames;
}

/// Uses the toolkit's own search; nullopt if it has none.
QCoro::Task<std::optional<AtSpiFocus>> askCollection(AtSpiQuestion question, QList<AtSpiReference> frames)
{
    AtSpiFocus focus{.object = std::nullopt, .isText = true, .isComplete = true};
    bool isKnown = false;
    std::vector<AtSpiQuestion::Reply> texts;
    for (const AtSpiReference &frame : frames)
        texts.push_back(findFocused(question, frame, {u"Text"_s}));
    for (AtSpiQuestion::Reply &pending : texts) {
        const std::optional<QVariantList> reply = co_await pending;
        const QList<AtSpiReference> matches = AtSpiReference::readList(reply ? reply->value(0) : QVariant());
        isKnown = isKnown || reply;
        focus.isComplete = focus.isComplete && reply;
        if (!focus.object && !matches.isEmpty())
            focus.object = matches.first();
    }
    if (!isKnown)
        co_return std::nullopt;
    if (focus.object)
        co_return focus;
    focus.isText = false;
    const QStringList anyInterface;
    for (const AtSpiReference &frame : frames) {
        const std::optional<QVariantList> reply = co_await findFocused(question, frame, anyInterface);
        const QList<AtSpiReference> matches = AtSpiReference::readList(reply ? reply->value(0) : QVariant());
        // If matches contain each other, the innermost comes last.
        if (!matches.isEmpty()) {
            focus.object = matches.last();
            break;
        }
    }
    co_return focus;
}

/// One step of the walk: an object that claims the focus, and the objects to visit next.
struct Step
{
    bool isAnswered = false;
    QList<AtSpiReference> focused;
    QList<AtSpiReference> children;
};

QCoro::Task<Step> lookAt(AtSpiQuestion question, QList<AtSpiReference> objects)
{
    Step step;
    std::vector<QCoro::Task<std::optional<AtSpiStates>>> states;
    for (const AtSpiReference &object : objects)
        states.push_back(question.states(object));
    std::vector<QCoro::Task<std::optional<QList<AtSpiReference>>>> children;
    for (size_t index = 0; index < states.size(); ++index) {
        const std::optional<AtSpiStates> state = co_await states[index];
        if (!state)
            continue;
        step.isAnswered = true;
        const AtSpiReference &object = objects.at(static_cast<qsizetype>(index));
        if (state->test(atspistate::kFocused))
            step.focused.append(object);
        // Skip closed menus and hidden pages; GTK 4 reports "showing" for few objects, but "visible" for all
        // that are. Skip the rows of long lists, which would be created only to be visited.
        if (state->test(atspistate::kVisible) && !state->test(atspistate::kManagesDescendants))
            children.push_back(question.children(object));
    }
    for (QCoro::Task<std::optional<QList<AtSpiReference>>> &pending : children) {
        const std::optional<QList<AtSpiReference>> found = co_await pending;
        step.children.append(found.value_or(QList<AtSpiReference>()));
    }
    co_return step;
}

QCoro::Task<std::optional<AtSpiReference>> firstText(AtSpiQuestion question, QList<AtSpiReference> objects)
{
    std::vector<QCoro::Task<std::optional<bool>>> pending;
    for (const AtSpiReference &object : objects)
        pending.push_back(question.isText(object));
    std::optional<AtSpiReference> text;
    for (size_t index = 0; index < pending.size(); ++index) {
        const std::optional<bool> isText = co_await pending[index];
        if (!text && isText.value_or(false))
            text = objects.at(static_cast<qsizetype>(index));
    }
    co_return text;
}

/// Walks the objects level by level, since the focused one is seldom deep.
QCoro::Task<AtSpiFocus> walk(AtSpiQuestion question, QList<AtSpiReference> frames)
{
    AtSpiFocus focus;
    QSet<AtSpiReference> seen(frames.cbegin(), frames.cend());
    QList<AtSpiReference> waiting = frames;
    while (!waiting.isEmpty()) {
        const QList<AtSpiReference> objects = waiting.first(std::min(kPipelined, waiting.size()));
        waiting.remove(0, objects.size());
        const Step step = co_await lookAt(question, objects);
        if (!step.isAnswered || question.isOver())
            co_return focus;
        const std::optional<AtSpiReference> text = co_await firstText(question, step.focused);
        if (text) {
            focus.object = text;
            focus.isText = true;
            co_return focus;
        }
        if (!step.focused.isEmpty())
            focus.object = step.focused.last();
        for (const AtSpiReference &child : step.children) {
            if (seen.contains(child))
                continue;
            if (seen.size() == kMaximumObjects)
                co_return focus;
            seen.insert(child);
            waiting.append(child);
        }
    }
    focus.isComplete = !question.isOver();
    co_return focus;
}

QCoro::Task<AtSpiFocus> search(AtSpiQuestion question, QList<AtSpiReference> frames)
{
    const std::optional<AtSpiFocus> matched = co_await askCollection(question, frames);
    if (matched)
        co_return *matched;
    co_return co_await walk(question, frames);
}

} // namespace

QCoro::Task<std::optional<AtSpiReference>> searchShownPage(AtSpiQuestion question, AtSpiReference application)
{
    // Roles are bits too, by number: this is "document web", the 95th.
    const QList<int> pageRole{0, 0, std::numeric_limits<int>::min()};
    const MatchRule rule{.states = {1 << atspistate::kShowing, 0}, .interfaces = {}, .roles = pageRole};
    const std::optional<Frames> frames = co_await findFrames(question, application);
    const QList<AtSpiReference> active = frames ? frames->active : QList<AtSpiReference>();
    for (const AtSpiReference &frame : active) {
        const std::optional<QVariantList> reply = co_await findMatches(question, frame, rule);
        const QList<AtSpiReference> pages = AtSpiReference::readList(reply ? reply->value(0) : QVariant());
        if (!pages.isEmpty())
            co_return pages.first();
    }
    co_return std::nullopt;
}

QCoro::Task<AtSpiFocus> searchFocus(AtSpiQuestion question, AtSpiReference application)
{
    const std::optional<Frames> frames = co_await findFrames(question, application);
    if (!frames)
        co_return AtSpiFocus();
    // An inactive window may have an object that claims the focus. However, while a key is grabbed, and in a
    // Chromium that was woken late, no window is active.
    AtSpiFocus focus{.object = std::nullopt, .isText = false, .isComplete = true};
    if (!frames->active.isEmpty())
        focus = co_await search(question, frames->active);
    if (focus.object || !focus.isComplete || frames->others.isEmpty())
        co_return focus;
    co_return co_await search(question, frames->others);
}

} // namespace vesk
