#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <string_view>

namespace Orvello {

/// A moment as the log files write it: ISO 8601, UTC, milliseconds, "2026-11-15T20:19:36.123Z".
/// Independent of locale and time zone data, and safe on any thread.
class Timestamp {
public:
    /// Time since 1970-01-01 00:00:00 UTC, clamped to the years 0 to 9999.
    explicit Timestamp(std::chrono::milliseconds sinceUnixEpoch);

    /// The system clock's time.
    [[nodiscard]] static Timestamp now();

    static constexpr std::size_t length = 24;
    std::string_view text() const { return { m_text.data(), m_text.size() }; }

private:
    std::array<char, length> m_text;
};

} // namespace Orvello
