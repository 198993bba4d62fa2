#include "Orvello/Voice/VoiceProcessingCapture.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Sound/SampleListener.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

namespace Orvello {

namespace {

using Setting = VoiceProcessingUnit::Setting;
using Status = VoiceProcessingUnit::Status;

struct RequiredSetting {
    Setting setting;
    std::string_view failure;
};

// In the order in which the unit wants them.
constexpr RequiredSetting requiredSettings[] {
    { Setting::EnableInput, "Orvello VPIO: enable input failed (%d)" },
    { Setting::EnableOutput, "Orvello VPIO: enable output failed (%d)" },
    { Setting::MicrophoneFormat, "Orvello VPIO: mic format failed (%d)" },
    { Setting::RenderFormat, "Orvello VPIO: render format failed (%d)" },
    { Setting::InputCallback, "Orvello VPIO: input callback failed (%d)" },
    { Setting::RenderCallback, "Orvello VPIO: render callback failed (%d)" },
};

bool succeeded(Status status, std::string_view failure)
{
    if (status != 0)
        AppLog::write(failure, status);
    return status == 0;
}

} // namespace

VoiceProcessingCapture::VoiceProcessingCapture(
    VoiceProcessing& voiceProcessing, SampleListener& listener)
    : m_voiceProcessing(voiceProcessing)
    , m_listener(listener)
{
}

VoiceProcessingCapture::~VoiceProcessingCapture() { dispose(); }

bool VoiceProcessingCapture::start() { return createUnit() && configureUnit() && runUnit(); }

bool VoiceProcessingCapture::createUnit()
{
    if (!m_voiceProcessing.isAvailable()) {
        AppLog::write("Orvello VPIO: component not found");
        return false;
    }
    auto [status, unit] = m_voiceProcessing.instantiate(*this);
    if (status != 0 || !unit) {
        AppLog::write("Orvello VPIO: instantiate failed (%d)", status);
        return false;
    }
    m_vpUnit = std::move(unit);
    return true;
}

bool VoiceProcessingCapture::configureUnit()
{
    const bool configured = std::all_of(std::begin(requiredSettings), std::end(requiredSettings),
        [this](const RequiredSetting& required) {
            return succeeded(m_vpUnit->configure(required.setting), required.failure);
        });
    if (!configured)
        return false;
    // Without it other programs sound quieter, which is no reason to give up echo cancellation.
    (void)succeeded(m_vpUnit->configure(Setting::OtherAudioDucking),
        "Orvello VPIO: ducking config failed (%d) — continuing");
    return true;
}

bool VoiceProcessingCapture::runUnit()
{
    m_renderScratch.resize(maximumBlockFrames);
    return succeeded(m_vpUnit->initialize(), "Orvello VPIO: initialize failed (%d)")
        && succeeded(m_vpUnit->start(), "Orvello VPIO: start failed (%d)");
}

void VoiceProcessingCapture::dispose()
{
    if (!m_vpUnit)
        return;
    m_vpUnit->stop();
    m_vpUnit->uninitialize();
    m_vpUnit.reset();
}

void VoiceProcessingCapture::onInput(VoiceProcessingUnit& unit, std::uint32_t frames) noexcept
{
    if (frames == 0 || frames > maximumBlockFrames || m_renderScratch.empty())
        return;
    const std::span<float> samples(m_renderScratch.data(), frames);
    if (unit.render(samples) == 0)
        m_listener.onSamples(samples);
}

} // namespace Orvello
