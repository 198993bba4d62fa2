#pragma once

#include "Orvello/Platform/Early/TimeSource.h"

namespace Orvello {

/// Time from the steady clock and timers on the Qt event loop, on every platform.
class QtTimeSource final : public TimeSource {
public:
    double now() const override;
    Date date() const override;
    std::unique_ptr<Ticket> callAfter(double seconds, Action action) override;
    std::unique_ptr<Ticket> callEvery(double seconds, Action action) override;
};

} // namespace Orvello
