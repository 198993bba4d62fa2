#pragma once

// First, because moc 6.4 cannot parse <compare> before any other standard header.
#include <QtGlobal>

#include <compare>

namespace Orvello {

/// A moment of the wall clock, in seconds since 2001-01-01 00:00:00 UTC, the reference date of the
/// library file. Kept as the number that the file holds, so that reading and writing a date never
/// changes it.
struct Date {
    double secondsSinceReferenceDate = 0;

    /// 2001-01-01 00:00:00 UTC in seconds since 1970-01-01 00:00:00 UTC.
    static constexpr double referenceDateInUnixSeconds = 978307200.0;

    static constexpr Date fromUnixSeconds(double seconds)
    {
        return { seconds - referenceDateInUnixSeconds };
    }
    constexpr double unixSeconds() const
    {
        return secondsSinceReferenceDate + referenceDateInUnixSeconds;
    }

    friend constexpr auto operator<=>(const Date&, const Date&) = default;
};

} // namespace Orvello
