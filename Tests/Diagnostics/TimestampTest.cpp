#include "Orvello/Diagnostics/Timestamp.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <random>
#include <string>

namespace Orvello {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

std::string textOf(std::int64_t unixMilliseconds)
{
    return std::string(Timestamp(milliseconds(unixMilliseconds)).text());
}

std::string textByTheCLibrary(std::time_t time)
{
    std::tm parts {};
    ::gmtime_r(&time, &parts);
    std::array<char, 64> text {};
    const std::size_t size
        = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S.000Z", &parts);
    return { text.data(), size };
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

TEST(TimestampTest, agreesWithTheCLibraryOnEveryDayOfFourCenturies)
{
    constexpr std::time_t day = 86'400;
    for (std::time_t time = -135'140 * day; time < 146'097 * day; time += day) {
        ASSERT_EQ(textOf(time * 1000), textByTheCLibrary(time));
        ASSERT_EQ(textOf((time + day - 1) * 1000), textByTheCLibrary(time + day - 1));
    }
}

TEST(TimestampTest, agreesWithTheCLibraryOnRandomMoments)
{
    // The same moments at every run. NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp)
    std::mt19937_64 random(7);
    std::uniform_int_distribution<std::time_t> moments(-30'000'000'000, 250'000'000'000);
    for (int i = 0; i < 20'000; ++i) {
        const std::time_t time = moments(random);
        ASSERT_EQ(textOf(time * 1000), textByTheCLibrary(time));
    }
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
