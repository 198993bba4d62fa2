#pragma once

#include "Orvello/Platform/Early/ProcessSignals.h"

namespace Orvello {

/// Signals through a pipe that wakes the Qt event loop (the self-pipe technique), on every POSIX
/// system.
class PosixProcessSignals final : public ProcessSignals {
public:
    bool isIgnored(int signal) const override;
    std::unique_ptr<Subscription> handle(int signal, std::function<void()> handler) override;
};

} // namespace Orvello
