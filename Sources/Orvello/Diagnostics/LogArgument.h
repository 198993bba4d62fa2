#pragma once

#include <QStringView>

#include <concepts>
#include <cstdint>
#include <string_view>
#include <variant>

namespace Orvello {

/// One argument of a log line: a text, an integer (a boolean is 0 or 1) or a floating-point number.
/// Texts are not copied, so an argument must not outlive the call that it is made for.
class LogArgument {
public:
    using Value = std::variant<std::string_view, QStringView, std::int64_t, std::uint64_t, double>;

    template <std::signed_integral Integer>
    explicit LogArgument(Integer value)
        : m_value(static_cast<std::int64_t>(value))
    {
    }
    template <std::unsigned_integral Integer>
    explicit LogArgument(Integer value)
        : m_value(static_cast<std::uint64_t>(value))
    {
    }
    template <std::floating_point Number>
    explicit LogArgument(Number value)
        : m_value(static_cast<double>(value))
    {
    }
    explicit LogArgument(const char* text)
        : m_value(text ? std::string_view(text) : std::string_view("(null)"))
    {
    }
    explicit LogArgument(std::string_view text)
        : m_value(text)
    {
    }
    explicit LogArgument(QStringView text) // A QString converts by itself.
        : m_value(text)
    {
    }

    const Value& value() const { return m_value; }

private:
    Value m_value;
};

} // namespace Orvello
