#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <xcb/xcb.h>

namespace Orvello::Xcb {

std::uint32_t atomNamed(xcb_connection_t* connection, std::string_view name)
{
    const auto request
        = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(connection, request, nullptr));
    return reply ? reply->atom : xcb_atom_t { XCB_ATOM_NONE };
}

} // namespace Orvello::Xcb
