#pragma once

#include <utility>

namespace Orvello {

/// Assigns, and says whether that changed anything:
///
///     if (assign(m_speed, speed))
///         Q_EMIT speedChanged();
template <typename Member, typename Value>
[[nodiscard]] bool assign(Member& member, Value&& value)
{
    if (member == value)
        return false;
    member = std::forward<Value>(value);
    return true;
}

} // namespace Orvello
