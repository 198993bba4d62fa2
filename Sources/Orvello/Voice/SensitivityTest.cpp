#include "Orvello/Voice/SensitivityTest.h"

#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Voice/Loudness.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <algorithm>
#include <cmath>

namespace Orvello {

namespace {

/// Quieter than the threshold at the most sensitive setting: whatever it is, the gate stays shut.
constexpr float faintest = 0.0016f;

/// How far speech must stand out from the room, by twelve decibels, to tell them apart for sure.
constexpr float contrast = 4.0f;

/// Talk is about one third pauses and breaths. The loudest parts are vowels, which the rest must
/// not be measured by.
constexpr double roomQuantile = 0.1;
constexpr double speechQuantile = 0.7;

float quantile(std::span<const float> sorted, double share)
{
    return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1))];
}

} // namespace

std::optional<double> SensitivityTest::proposalFor(std::span<const float> loudness)
{
    std::vector<float> sorted(loudness.begin(), loudness.end());
    std::erase_if(sorted, [](float value) { return !std::isfinite(value); });
    if (sorted.empty())
        return std::nullopt;
    std::sort(sorted.begin(), sorted.end());
    const float room = quantile(sorted, roomQuantile);
    const float speech = quantile(sorted, speechQuantile);
    if (speech < faintest || speech < contrast * room)
        return std::nullopt;
    // Six decibels above the room at least, and otherwise twelve below the voice.
    const float threshold = std::max(2 * room, speech / 4);
    const double sensitivity = Loudness::sensitivityOf(threshold);
    return std::clamp(std::round(sensitivity * 100) / 100, leastSensitivity, mostSensitivity);
}

SensitivityTest::SensitivityTest(
    VoiceActivityEngine& voice, SettingsStore& settings, TimeSource& time)
    : m_voice(voice)
    , m_settings(settings)
    , m_time(time)
{
    connect(&voice, &VoiceActivityEngine::statusChanged, this, &SensitivityTest::onVoiceChanged);
}

SensitivityTest::~SensitivityTest() = default;

QString SensitivityTest::message() const
{
    if (m_timer && m_voice.trouble() != VoiceActivityEngine::Trouble::None)
        return m_voice.troubleForPeople();
    if (m_timer)
        return tr("Speak normally for five seconds.");
    if (m_isRunning)
        return tr("Waiting for the microphone…");
    if (m_proposal)
        //: %1: a whole number.
        return tr("A sensitivity of %1% suits your voice here.")
            .arg(std::lround(*m_proposal * 100));
    return m_failure;
}

void SensitivityTest::begin()
{
    if (m_isRunning)
        return;
    m_loudness.clear();
    m_proposal.reset();
    m_failure.clear();
    m_isRunning = true;
    m_isStarter = !m_voice.isListening();
    if (m_isStarter)
        m_voice.requestPermissionAndStart();
    onVoiceChanged();
}

/// Until something is captured, whatever may keep it from that ends the test: nobody waits in a
/// window for a microphone to be bought, and nothing must be left that begins to capture later.
void SensitivityTest::onVoiceChanged()
{
    if (!m_isRunning)
        return;
    const bool hasStopped = m_timer && !m_voice.isListening();
    if (!m_timer && m_voice.isListening()) {
        m_timer = m_time.callAfter(seconds, [this] { finish(); });
    } else if (hasStopped || (!m_timer && isInVain())) {
        m_failure = m_voice.troubleForPeople(); // None where the user stopped it.
        end();
    }
    Q_EMIT changed();
}

bool SensitivityTest::isInVain() const
{
    const bool isAnswered = m_voice.isStarted() || m_voice.micAuthorized() == false;
    return isAnswered && m_voice.trouble() != VoiceActivityEngine::Trouble::None;
}

void SensitivityTest::hear(float rootMeanSquare)
{
    if (m_timer)
        m_loudness.push_back(rootMeanSquare);
}

void SensitivityTest::finish()
{
    m_proposal = proposalFor(m_loudness);
    if (!m_proposal)
        m_failure = m_voice.troubleForPeople();
    if (!m_proposal && m_failure.isEmpty())
        m_failure = tr("No voice stood out from the room. Come closer to the microphone, or "
                       "choose another one.");
    end();
    Q_EMIT changed();
}

void SensitivityTest::end()
{
    m_isRunning = false;
    m_timer.reset();
    if (m_isStarter && !m_settings.voiceFollow())
        m_voice.stop();
}

void SensitivityTest::useProposal()
{
    if (m_proposal)
        m_settings.setVoiceSensitivity(*m_proposal);
}

} // namespace Orvello
