#pragma once

#include <optional>
#include <string>

namespace Orvello {

/// What a log says about an exception.
struct ExceptionReport {
    std::string name; ///< The exception's type, as in C++ source.
    std::string reason; ///< Its what(); empty when it has none.
    std::string stack; ///< The frames of the calling thread, joined by line feeds.

    /// Describes the C++ exception that is being handled: inside a catch block, or in a terminate
    /// handler, where the stack is still that of the throw. Nothing when there is none, or when it
    /// comes from another language.
    [[nodiscard]] static std::optional<ExceptionReport> ofCurrentException();
};

} // namespace Orvello
