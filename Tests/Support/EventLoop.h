#pragma once

namespace Orvello::Testing {

/// Runs whatever is queued on the main event loop, and what that queues in turn, without waiting.
void drainEvents();

} // namespace Orvello::Testing
