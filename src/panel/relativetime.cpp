// SPDX-License-Identifier: MIT
#include "panel/relativetime.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <unicode/ureldatefmt.h>

#include <array>

using namespace std::chrono_literals;

namespace vesk {

namespace {

QDateTime local(Date date)
{
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::floor<std::chrono::milliseconds>(date).time_since_epoch().count());
}

/// The number of whole calendar months between two points in time.
int monthsBetween(Date from, Date to)
{
    const QDateTime first = local(from);
    const QDateTime last = local(to);
    const int months =
        (last.date().year() - first.date().year()) * 12 + last.date().month() - first.date().month();
    return first.addMonths(months) > last ? months - 1 : months;
}

struct Distance
{
    double count;
    URelativeDateTimeUnit unit;
};

/// The distance in the largest unit of which at least one has passed.
Distance distance(Date from, Date to)
{
    const auto passed = to - from;
    if (passed < 1h)
        return {static_cast<double>(passed / 1min), UDAT_REL_UNIT_MINUTE};
    if (passed < 24h)
        return {static_cast<double>(passed / 1h), UDAT_REL_UNIT_HOUR};
    if (passed < std::chrono::days(7))
        return {static_cast<double>(passed / std::chrono::days(1)), UDAT_REL_UNIT_DAY};
    const int months = monthsBetween(from, to);
    if (months < 1)
        return {static_cast<double>(passed / std::chrono::weeks(1)), UDAT_REL_UNIT_WEEK};
    if (months < 12)
        return {static_cast<double>(months), UDAT_REL_UNIT_MONTH};
    const int years = months / 12;
    return {static_cast<double>(years), UDAT_REL_UNIT_YEAR};
}

} // namespace

void RelativeTime::Close::operator()(URelativeDateTimeFormatter *formatter) const
{
    ureldatefmt_close(formatter);
}

RelativeTime::RelativeTime()
{
    UErrorCode status = U_ZERO_ERROR;
    const QByteArray locale = QLocale().name().toLatin1();
    m_formatter.reset(ureldatefmt_open(locale.constData(), nullptr, UDAT_STYLE_SHORT,
                                       UDISPCTX_CAPITALIZATION_NONE, &status));
    if (U_FAILURE(status))
        m_formatter.reset();
}

RelativeTime::~RelativeTime() = default;

QString RelativeTime::text(Date date, Date now) const
{
    if (now - date < 1min)
        return QCoreApplication::translate("RelativeTime", "Just now");
    if (!m_formatter)
        return {};
    const Distance ago = distance(date, now);
    std::array<UChar, 128> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    const int length = ureldatefmt_format(m_formatter.get(), -ago.count, ago.unit, buffer.data(),
                                          static_cast<int>(buffer.size()), &status);
    if (U_FAILURE(status))
        return {};
    QString text = QString::fromUtf16(buffer.data(), length);
    const qsizetype first = !text.isEmpty() && text.front().isHighSurrogate() ? 2 : 1;
    return QLocale().toUpper(text.left(first)) + text.mid(first);
}

} // namespace vesk
