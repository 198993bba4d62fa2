#include "Orvello/Diagnostics/Timestamp.h"

#include <algorithm>
#include <cstdint>

namespace Orvello {

namespace {

using std::chrono::milliseconds;

// The first and the last moment that four digits of a year can tell.
constexpr milliseconds earliest = std::chrono::days(-719'528);
constexpr milliseconds latest = std::chrono::days(2'932'897) - milliseconds(1);

constexpr std::size_t millisecondsStart = 20; // In the text.

struct CivilDate {
    int year;
    int month; ///< 1...12
    int day; ///< 1...31
};

/// The Gregorian date of a day since 1970-01-01. It counts from 1 March of a year that 400 divides:
/// then a leap day ends its year, its four years and its 400 years, and only those can be longer.
CivilDate dateOfDay(int daysSinceUnixEpoch)
{
    constexpr int originYear = -400;
    constexpr int originDay = -865'565; // 1 March of that year.
    constexpr int daysIn400Years = 146'097;
    constexpr int daysIn100Years = 36'524;
    constexpr int daysIn4Years = 1'461;

    const int day = daysSinceUnixEpoch - originDay;
    const int dayOf400 = day % daysIn400Years;
    const int century = std::min(dayOf400 / daysIn100Years, 3);
    const int dayOf100 = dayOf400 - century * daysIn100Years;
    const int dayOf4 = dayOf100 % daysIn4Years;
    const int yearOf4 = std::min(dayOf4 / 365, 3);
    const int dayOfYear = dayOf4 - yearOf4 * 365;
    const int year = originYear + day / daysIn400Years * 400 + century * 100
        + dayOf100 / daysIn4Years * 4 + yearOf4;

    // From March on the months have 31, 30, 31, 30, 31 days, again and again: 153 in five months.
    const int month = (5 * dayOfYear + 2) / 153;
    const int dayOfMonth = dayOfYear - (153 * month + 2) / 5 + 1;
    if (month < 10)
        return { year, month + 3, dayOfMonth };
    return { year + 1, month - 9, dayOfMonth };
}

void writeDigits(char* place, int count, int number)
{
    for (int i = count - 1; i >= 0; --i) {
        place[i] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

} // namespace

Timestamp::Timestamp(milliseconds sinceUnixEpoch)
{
    constexpr std::string_view blank = "0000-00-00T00:00:00.000Z";
    static_assert(blank.size() == length);
    std::copy(blank.begin(), blank.end(), m_text.begin());

    const milliseconds time = std::clamp(sinceUnixEpoch, earliest, latest);
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const auto timeOfDay = static_cast<int>(milliseconds(time - day).count());
    const CivilDate date = dateOfDay(static_cast<int>(day.count()));

    writeDigits(&m_text[0], 4, date.year);
    writeDigits(&m_text[5], 2, date.month);
    writeDigits(&m_text[8], 2, date.day);
    writeDigits(&m_text[11], 2, timeOfDay / 3'600'000);
    writeDigits(&m_text[14], 2, timeOfDay / 60'000 % 60);
    writeDigits(&m_text[17], 2, timeOfDay / 1'000 % 60);
    writeDigits(&m_text[millisecondsStart], 3, timeOfDay % 1'000);
}

Timestamp Timestamp::now()
{
    using std::chrono::floor;
    using std::chrono::seconds;
    const auto time = floor<milliseconds>(std::chrono::system_clock::now().time_since_epoch());
    const auto second = floor<seconds>(time);

    // Lines come in bursts, and within a second only the milliseconds differ.
    thread_local seconds latestSecond { 0 };
    thread_local Timestamp latest { latestSecond };
    if (second != latestSecond) {
        latest = Timestamp(second);
        latestSecond = second;
    }
    Timestamp stamp = latest;
    writeDigits(&stamp.m_text[millisecondsStart], 3, static_cast<int>((time - second).count()));
    return stamp;
}

} // namespace Orvello
