#include "Orvello/Diagnostics/Timestamp.h"

#include <algorithm>

namespace Orvello {

namespace {

using std::chrono::milliseconds;

// The first and the last moment that a four-digit year can express.
constexpr milliseconds earliest = std::chrono::days(-719'528);
constexpr milliseconds latest = std::chrono::days(2'932'897) - milliseconds(1);

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

    const std::chrono::sys_time<milliseconds> time(std::clamp(sinceUnixEpoch, earliest, latest));
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const auto timeOfDay = static_cast<int>((time - day).count());

    writeDigits(&m_text[0], 4, static_cast<int>(date.year()));
    writeDigits(&m_text[5], 2, static_cast<int>(static_cast<unsigned>(date.month())));
    writeDigits(&m_text[8], 2, static_cast<int>(static_cast<unsigned>(date.day())));
    writeDigits(&m_text[11], 2, timeOfDay / 3'600'000);
    writeDigits(&m_text[14], 2, timeOfDay / 60'000 % 60);
    writeDigits(&m_text[17], 2, timeOfDay / 1'000 % 60);
    writeDigits(&m_text[20], 3, timeOfDay % 1'000);
}

Timestamp Timestamp::now()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return Timestamp(std::chrono::floor<milliseconds>(now));
}

} // namespace Orvello
