#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

struct xcb_connection_t;

/// What every use of xcb here needs.
namespace Orvello::Xcb {

template <typename Value>
using Owned = std::unique_ptr<Value, decltype(&std::free)>;

/// Takes a reply or an event, which xcb allocates for its caller.
template <typename Value>
Owned<Value> owned(Value* value)
{
    return { value, &std::free };
}

/// The atom, made if it is new; 0 on a broken connection.
std::uint32_t atomNamed(xcb_connection_t* connection, std::string_view name);

} // namespace Orvello::Xcb
