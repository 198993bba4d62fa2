#pragma once

#include <utility>
#include <variant>

namespace Orvello {

/// What a Result is made from when the operation failed.
template <typename Error>
struct Failure {
    Error error;
};
template <typename Error>
Failure(Error) -> Failure<Error>;

/// A value or the reason why there is none, with the member names of std::expected, which takes its
/// place once every supported compiler has it.
template <typename Value, typename Error>
class [[nodiscard]] Result {
public:
    // NOLINTBEGIN(google-explicit-constructor): like std::expected, so that a function can just
    // return its value or its Failure.
    Result(Value value)
        : m_state(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Failure<Error> failure)
        : m_state(std::in_place_index<1>, std::move(failure.error))
    {
    }
    // NOLINTEND(google-explicit-constructor)

    bool has_value() const { return m_state.index() == 0; }
    explicit operator bool() const { return has_value(); }

    const Value& value() const& { return std::get<0>(m_state); }
    Value&& value() && { return std::get<0>(std::move(m_state)); }
    const Value& operator*() const& { return value(); }
    Value&& operator*() && { return std::move(*this).value(); }
    const Value* operator->() const { return &value(); }

    const Error& error() const { return std::get<1>(m_state); }

private:
    std::variant<Value, Error> m_state;
};

} // namespace Orvello
