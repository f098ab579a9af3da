#include "Moment.h"

#include "Text.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace record {

namespace {

bool isLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int year, int month) {
    static const std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

/// Days from the first of January of the year 1.
long daysSinceYearOne(const Moment& moment) {
    const long before = moment.year - 1;
    long days = before * 365 + before / 4 - before / 100 + before / 400;
    for (int month = 1; month < moment.month; ++month)
        days += daysInMonth(moment.year, month);
    return days + moment.day - 1;
}

/// A whole number of one to nine digits.
std::optional<int> toPart(std::string_view text) {
    const std::optional<std::uint64_t> value = toCount(text);
    if (!value || *value > 999'999'999)
        return std::nullopt;
    return static_cast<int>(*value);
}

/// Splits at any of the characters, into at most as many parts as `parts` holds; false when there are more or
/// fewer.
template <std::size_t Size>
bool splitAtAny(std::string_view text, const char* separators, std::array<std::string_view, Size>& parts) {
    for (std::size_t i = 0; i < Size; ++i) {
        const std::size_t place = i + 1 < Size ? text.find_first_of(separators) : std::string_view::npos;
        if (i + 1 < Size && place == std::string_view::npos)
            return false;
        parts[i] = text.substr(0, place);
        if (place != std::string_view::npos)
            text.remove_prefix(place + 1);
    }
    return true;
}

bool readDate(std::string_view text, bool isMonthFirst, Moment& moment) {
    std::array<std::string_view, 3> parts;
    if (!splitAtAny(text, "/-.", parts))
        return false;
    // A date that starts with a four-digit year says its order itself.
    const bool isYearFirst = trim(parts[0]).size() == 4;
    const auto year = toPart(isYearFirst ? parts[0] : parts[2]);
    const auto middle = toPart(parts[1]);
    const auto other = toPart(isYearFirst ? parts[2] : parts[0]);
    if (!year || !middle || !other || *year > 9999)
        return false;

    moment.year = *year;
    if (trim(isYearFirst ? parts[0] : parts[2]).size() <= 2)
        moment.year += *year >= 70 ? 1900 : 2000;
    const bool isOtherMonth = isMonthFirst && !isYearFirst;
    moment.month = isOtherMonth ? *other : *middle;
    moment.day = isOtherMonth ? *middle : *other;
    if (moment.month > 12)
        std::swap(moment.month, moment.day);
    return moment.year >= 1 && moment.month >= 1 && moment.month <= 12 && moment.day >= 1 &&
           moment.day <= daysInMonth(moment.year, moment.month);
}

bool readTime(std::string_view text, Moment& moment) {
    std::array<std::string_view, 3> parts;
    if (!splitAtAny(text, ":", parts))
        return false;
    std::string_view fraction;
    // Some devices write a colon before the fraction.
    const std::size_t point = parts[2].find_first_of(".:,");
    if (point != std::string_view::npos) {
        fraction = trim(parts[2].substr(point + 1));
        parts[2] = parts[2].substr(0, point);
    }
    const auto hour = toPart(parts[0]);
    const auto minute = toPart(parts[1]);
    const auto second = toPart(parts[2]);
    if (!hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 60)
        return false;
    moment.hour = *hour;
    moment.minute = *minute;
    moment.second = *second;

    moment.fractionDigits = static_cast<int>(std::min<std::size_t>(fraction.size(), 9));
    if (fraction.empty())
        return true;
    const auto value = toPart(fraction.substr(0, 9));
    if (!value)
        return false;
    moment.nanosecond = *value;
    for (int digit = moment.fractionDigits; digit < 9; ++digit)
        moment.nanosecond *= 10;
    return true;
}

} // namespace

std::string Moment::text() const {
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d.%09d", year, month, day, hour, minute,
                  second, nanosecond);
    return text;
}

std::optional<Moment> parseMoment(std::string_view date, std::string_view time, bool isMonthFirst) {
    Moment moment;
    if (!readDate(trim(date), isMonthFirst, moment) || !readTime(trim(time), moment))
        return std::nullopt;
    return moment;
}

double secondsBetween(const Moment& from, const Moment& to) {
    const long days = daysSinceYearOne(to) - daysSinceYearOne(from);
    const long seconds = days * 86400 + (to.hour - from.hour) * 3600L + (to.minute - from.minute) * 60L +
                         to.second - from.second;
    return static_cast<double>(seconds) + (to.nanosecond - from.nanosecond) * 1e-9;
}

} // namespace record
