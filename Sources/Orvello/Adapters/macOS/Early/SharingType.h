#pragma once

namespace Orvello {

/// Whether captures may ignore that a window is not to be shared: from macOS 15 on, all that is
/// made with ScreenCaptureKit does.
[[nodiscard]] bool isSharingTypeIgnored();

} // namespace Orvello
