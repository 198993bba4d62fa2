#pragma once

#include "Orvello/Platform/Sound/Microphones.h"

namespace Orvello {

class PulseConnection;

/// The sources of the sound server, and the stream on the one that is recorded.
class PulseMicrophones final : public Microphones {
public:
    explicit PulseMicrophones(PulseConnection& connection); ///< Must outlive this.

    State state() override;
    void choose(const QString& identifier) override;
    void setObserver(std::function<void()> changed) override;

private:
    PulseConnection& m_connection;
};

} // namespace Orvello
