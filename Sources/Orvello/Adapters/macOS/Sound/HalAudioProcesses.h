#pragma once

#include "Orvello/Platform/Sound/AudioProcesses.h"

namespace Orvello {

/// The process objects of the audio hardware layer, which macOS 14 brought. Asking needs no
/// permission. Before macOS 14 the list does not exist, and nobody is found.
class HalAudioProcesses final : public AudioProcesses {
public:
    QList<qint64> capturingInput() override;
};

} // namespace Orvello
