#pragma once

#include "Orvello/Platform/Sound/AudioProcesses.h"

namespace Orvello::Testing {

/// The processes that a test lets capture.
class FakeAudioProcesses final : public AudioProcesses {
public:
    QList<qint64> capturingInput() override { return capturing; }

    QList<qint64> capturing;
};

} // namespace Orvello::Testing
