#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace record {

/// A date and a time of day, without a zone.
struct Moment {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int nanosecond = 0;
    /// How many digits the fraction of the second was written with.
    int fractionDigits = 0;

    /// ISO 8601 with nanoseconds, such as "2011-01-12T05:55:30.075011000".
    std::string text() const;
};

/// Reads "dd/mm/yyyy" and "hh:mm:ss.ffffff". `isMonthFirst` is the habit of 1991; a month above twelve is
/// swapped with the day. Two-digit years from 70 on belong to the last century. Empty for anything that is no
/// real date and time.
std::optional<Moment> parseMoment(std::string_view date, std::string_view time, bool isMonthFirst);

/// Seconds from one moment to another; leap seconds are not counted.
double secondsBetween(const Moment& from, const Moment& to);

} // namespace record
