#include "Orvello/Diagnostics/Timestamp.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace Orvello {
namespace {

using std::chrono::milliseconds;

std::string textOf(std::int64_t unixMilliseconds)
{
    return std::string(Timestamp(milliseconds(unixMilliseconds)).text());
}

TEST(TimestampTest, writesDateTimeMillisecondsAndUtc)
{
    EXPECT_EQ(textOf(1794773976123), "2026-11-15T20:19:36.123Z");
    EXPECT_EQ(textOf(0), "1970-01-01T00:00:00.000Z");
    EXPECT_EQ(textOf(1), "1970-01-01T00:00:00.001Z");
    EXPECT_EQ(textOf(999), "1970-01-01T00:00:00.999Z");
}

TEST(TimestampTest, knowsTheLeapYears)
{
    EXPECT_EQ(textOf(951782400000), "2000-02-29T00:00:00.000Z");
    EXPECT_EQ(textOf(1709251199999), "2024-02-29T23:59:59.999Z");
    EXPECT_EQ(textOf(1709251200000), "2024-03-01T00:00:00.000Z");
    EXPECT_EQ(textOf(1735689599999), "2024-12-31T23:59:59.999Z");
    EXPECT_EQ(textOf(4107542400000), "2100-03-01T00:00:00.000Z");
    EXPECT_EQ(textOf(4107542399999), "2100-02-28T23:59:59.999Z");
}

TEST(TimestampTest, countsBackwardsFromTheEpoch)
{
    EXPECT_EQ(textOf(-1), "1969-12-31T23:59:59.999Z");
    EXPECT_EQ(textOf(-11644473600000), "1601-01-01T00:00:00.000Z");
}

TEST(TimestampTest, staysInsideFourDigitsOfAYear)
{
    EXPECT_EQ(textOf(std::numeric_limits<std::int64_t>::min()), "0000-01-01T00:00:00.000Z");
    EXPECT_EQ(textOf(-62167219200000), "0000-01-01T00:00:00.000Z");
    EXPECT_EQ(textOf(253402300799999), "9999-12-31T23:59:59.999Z");
    EXPECT_EQ(textOf(std::numeric_limits<std::int64_t>::max()), "9999-12-31T23:59:59.999Z");
}

TEST(TimestampTest, nowLiesBetweenTwoReadingsOfTheClock)
{
    const auto read = [] {
        return std::string(Timestamp(
            std::chrono::floor<milliseconds>(std::chrono::system_clock::now().time_since_epoch()))
                               .text());
    };

    const std::string before = read();
    const std::string now(Timestamp::now().text());
    const std::string after = read();

    EXPECT_LE(before, now);
    EXPECT_LE(now, after);
}

} // namespace
} // namespace Orvello
