#pragma once

#include <QList>

namespace Orvello {

/// The processes that the sound system serves. Main thread; never waits for the sound system.
class AudioProcesses {
public:
    virtual ~AudioProcesses() = default;

    /// The identifiers of those that capture audio input now, this process among them if it does.
    /// What the system does not say is left out.
    virtual QList<qint64> capturingInput() = 0;
};

} // namespace Orvello
