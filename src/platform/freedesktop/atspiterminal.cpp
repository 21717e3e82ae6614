// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspiterminal.h"

#include <QDBusArgument>

#include <algorithm>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// Browsers report an element's class, tag and id as attributes of its object.
struct Mark
{
    QLatin1StringView attribute;
    QLatin1StringView part;
};

constexpr Mark kMarks[] = {
    // xterm.js, which most terminals in web pages and Electron applications use.
    {.attribute = "class"_L1, .part = "xterm"_L1},
    // hterm.
    {.attribute = "tag"_L1, .part = "x-screen"_L1},
    // noVNC and Guacamole show another machine's screen.
    {.attribute = "id"_L1, .part = "noVNC"_L1},
    {.attribute = "class"_L1, .part = "input-sink"_L1},
};

} // namespace

QCoro::Task<bool> isWebTerminal(AtSpiQuestion question, AtSpiReference field)
{
    const std::optional<QVariantList> reply =
        co_await question.call(field, u"org.a11y.atspi.Accessible"_s, u"GetAttributes"_s);
    if (!reply || reply->isEmpty())
        co_return false;
    const auto attributes = qdbus_cast<QMap<QString, QString>>(reply->first());
    co_return std::ranges::any_of(kMarks, [&attributes](const Mark &mark) {
        return attributes.value(mark.attribute).contains(mark.part, Qt::CaseInsensitive);
    });
}

} // namespace vesk
