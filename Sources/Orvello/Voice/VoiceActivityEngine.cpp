#include "Orvello/Voice/VoiceActivityEngine.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Desktop/Workspace.h"
#include "Orvello/Platform/Sound/MicrophonePermission.h"
#include "Orvello/Platform/Sound/RawMicrophone.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Voice/Loudness.h"
#include "Orvello/Voice/MeetingApplications.h"
#include "Orvello/Voice/MicActivity.h"

#include <QCoreApplication>
#include <QPointer>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr double watchdogSeconds = 1.0;
constexpr int clearPollsBeforeAec = 5;
constexpr int rawBlockFrames = 2048;

/// How long a start waits for a microphone, in a session that is only just coming up, once the
/// sound system says that there is none.
constexpr double startPatienceSeconds = 3.0;

} // namespace

VoiceActivityEngine::VoiceActivityEngine(
    SettingsStore& settings, const Ports& ports, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_ports(ports)
    , m_voiceProcessing(ports.voiceProcessing, *this)
    , m_sensitivity(settings.voiceSensitivity())
    , m_reportsArrived([this] { applyPendingReports(); })
    , m_sensitivityTest(*this, settings, ports.time)
{
    static_assert(
        std::atomic<double>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);
    // Directly, not through the event loop: the very next block uses the new value.
    connect(&settings, &SettingsStore::voiceSensitivityChanged, this,
        [this] { m_sensitivity.store(m_settings.voiceSensitivity()); });
    connect(&settings, &SettingsStore::voiceSensitivityChanged, this,
        &VoiceActivityEngine::thresholdLevelChanged);
    connect(&settings, &SettingsStore::microphoneChanged, this, [this] {
        m_ports.microphones.choose(m_settings.microphone());
        Q_EMIT choicesChanged();
    });
    ports.microphones.choose(settings.microphone());
    m_sound = ports.microphones.state();
    ports.microphones.setObserver([this] { onMicrophonesChanged(); });
    for (const auto signal :
        { &VoiceActivityEngine::micAuthorizedChanged, &VoiceActivityEngine::isListeningChanged,
            &VoiceActivityEngine::aecActiveChanged, &VoiceActivityEngine::aecHoldReasonChanged })
        connect(this, signal, this, &VoiceActivityEngine::statusChanged);
    connect(
        &settings, &SettingsStore::voiceFollowChanged, this, &VoiceActivityEngine::statusChanged);
}

VoiceActivityEngine::~VoiceActivityEngine()
{
    m_ports.microphones.setObserver({});
    stopCurrentCapture();
}

QVariant VoiceActivityEngine::micAuthorizedOrNull() const
{
    return m_micAuthorized ? QVariant(*m_micAuthorized) : QVariant::fromValue(nullptr);
}

template <typename Value>
void VoiceActivityEngine::publish(
    Value& member, const Value& value, void (VoiceActivityEngine::*changed)())
{
    if (member == value)
        return;
    member = value;
    Q_EMIT(this->*changed)();
}

void VoiceActivityEngine::requestPermissionAndStart()
{
    using Status = MicrophonePermission::Status;
    switch (m_ports.permission.status()) {
    case Status::NotDetermined:
        requestPermission();
        break;
    case Status::Authorized:
        publish(m_micAuthorized, std::optional(true), &VoiceActivityEngine::micAuthorizedChanged);
        start();
        break;
    case Status::Denied:
    case Status::Restricted:
        publish(m_micAuthorized, std::optional(false), &VoiceActivityEngine::micAuthorizedChanged);
        AppLog::write("Orvello mic permission previously denied");
        break;
    }
}

void VoiceActivityEngine::requestPermission()
{
    AppLog::write("Orvello requesting mic permission");
    const auto decided = [engine = QPointer(this)](bool isGranted) {
        if (engine)
            engine->publish(engine->m_micAuthorized, std::optional(isGranted),
                &VoiceActivityEngine::micAuthorizedChanged);
        AppLog::write("Orvello mic permission granted=%d", isGranted ? 1 : 0);
        if (isGranted && engine)
            engine->start();
    };
    // The answer comes on any thread, perhaps after the engine: only the application itself is sure
    // to be there to take it to the main loop.
    m_ports.permission.request([decided](bool isGranted) {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [decided, isGranted] { decided(isGranted); },
            Qt::QueuedConnection);
    });
}

void VoiceActivityEngine::start()
{
    if (m_isListening || m_patience)
        return;
    // Who else has the microphone is known once the sound system answers, and not before.
    m_sound = m_ports.microphones.state();
    if (m_sound.isReady)
        choosePath();
    else
        awaitMicrophone();
}

void VoiceActivityEngine::awaitMicrophone()
{
    m_patience = m_ports.time.callAfter(startPatienceSeconds, [this] {
        // Only an answer ends the waiting: what nobody knows is no clear environment.
        const bool isAnswered = m_sound.trouble != Microphones::Trouble::NoAnswer
            && m_sound.trouble != Microphones::Trouble::Refused;
        if (isAnswered)
            return choosePath();
        (void)m_ports.micActivity.otherProcessCapturingInput(); // The system asks itself anew.
        awaitMicrophone();
    });
    Q_EMIT statusChanged();
}

void VoiceActivityEngine::onMicrophonesChanged()
{
    const Microphones::State before = std::exchange(m_sound, m_ports.microphones.state());
    if (before != m_sound)
        Q_EMIT statusChanged();
    if (before.choices != m_sound.choices)
        Q_EMIT choicesChanged();
    if (m_patience && m_sound.isReady)
        choosePath();
}

bool VoiceActivityEngine::isDead() const { return m_watchdog && !m_isListening; }

VoiceActivityEngine::Trouble VoiceActivityEngine::trouble() const
{
    if (m_micAuthorized == false)
        return Trouble::PermissionDenied;
    switch (m_sound.trouble) {
    case Microphones::Trouble::None:
        return isDead() ? Trouble::NotStarted : Trouble::None;
    case Microphones::Trouble::NoAnswer:
        return Trouble::NoAnswer;
    case Microphones::Trouble::Refused:
        return Trouble::PermissionDenied;
    case Microphones::Trouble::NoMicrophone:
        return Trouble::NoMicrophone;
    case Microphones::Trouble::Muted:
        return Trouble::Muted;
    case Microphones::Trouble::Withheld:
        return Trouble::Withheld;
    }
    return Trouble::None;
}

VoiceActivityEngine::EchoCancellation VoiceActivityEngine::echoCancellation() const
{
    if (!m_isListening)
        return EchoCancellation::Off;
    if (m_aecActive)
        return EchoCancellation::On;
    if (!m_aecHoldReason)
        return EchoCancellation::Unavailable;
    return m_aecHoldReason->meetingApp.isEmpty() ? EchoCancellation::HeldForOtherProgram
                                                 : EchoCancellation::HeldForMeeting;
}

QString VoiceActivityEngine::troubleForPeople() const
{
    switch (trouble()) {
    case Trouble::None:
        break;
    case Trouble::PermissionDenied:
        return tr("The microphone may not be used.");
    case Trouble::NoAnswer:
        return tr("The sound system does not answer.");
    case Trouble::NoMicrophone:
        return tr("No microphone is connected.");
    case Trouble::Muted:
        //: %1: the name of a microphone.
        return tr("The microphone “%1” is muted.").arg(m_sound.heard);
    case Trouble::Withheld:
        //: %1: the name of a microphone.
        return tr("Nothing comes from the microphone “%1”. Another program may keep it to "
                  "itself.")
            .arg(m_sound.heard);
    case Trouble::NotStarted:
        return tr("The microphone could not be started.");
    }
    return {};
}

QString VoiceActivityEngine::echoCancellationForPeople() const
{
    switch (echoCancellation()) {
    case EchoCancellation::Off:
        break;
    case EchoCancellation::On:
        return tr("Echo cancellation is on.");
    case EchoCancellation::HeldForOtherProgram:
    case EchoCancellation::HeldForMeeting:
        //: %1: why, such as "Zoom is open".
        return tr("Echo cancellation is paused: %1.").arg(aecHoldReasonForPeople());
    case EchoCancellation::Unavailable:
        return tr("Echo cancellation is not available.");
    }
    return {};
}

QString VoiceActivityEngine::hearing() const
{
    if (!m_settings.voiceFollow() && !m_isListening)
        return {};
    if (isDead() && trouble() == Trouble::NoMicrophone)
        return tr("No microphone is connected. Connect one, then turn Voice-Follow off and on.");
    if (trouble() == Trouble::NotStarted)
        return tr("The microphone could not be started. Turn Voice-Follow off and on to try "
                  "again.");
    if (trouble() != Trouble::None || !m_isListening || m_sound.heard.isEmpty())
        return troubleForPeople();
    //: %1: the name of a microphone.
    return tr("Listening to “%1”.").arg(m_sound.heard);
}

QString VoiceActivityEngine::status() const
{
    QStringList lines { hearing() };
    if (trouble() == Trouble::None)
        lines.append(echoCancellationForPeople());
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QStringList VoiceActivityEngine::microphoneChoices() const
{
    if (m_sound.choices.isEmpty() && m_settings.microphone().isEmpty())
        return {};
    //: The microphone that the desktop's settings choose.
    QStringList names { tr("System default") };
    for (const Microphones::Microphone& microphone : m_sound.choices)
        names.append(microphone.name);
    const bool isGone = microphoneIndex() == names.size();
    if (isGone)
        //: %1: the name of a microphone.
        names.append(tr("%1 (not connected)").arg(m_settings.microphoneName()));
    return names;
}

int VoiceActivityEngine::microphoneIndex() const
{
    if (m_settings.microphone().isEmpty())
        return 0;
    int index = 1;
    for (const Microphones::Microphone& microphone : m_sound.choices) {
        if (microphone.identifier == m_settings.microphone())
            break;
        ++index;
    }
    return index; // One past the others while it is not connected.
}

void VoiceActivityEngine::chooseMicrophone(int index)
{
    if (index == 0)
        m_settings.setMicrophone({}, {});
    else if (index > 0 && index <= m_sound.choices.size())
        m_settings.setMicrophone(
            m_sound.choices[index - 1].identifier, m_sound.choices[index - 1].name);
}

float VoiceActivityEngine::thresholdLevel() const
{
    return Loudness::levelTarget(Loudness::speechThreshold(m_settings.voiceSensitivity()));
}

void VoiceActivityEngine::choosePath()
{
    m_patience.reset();
    if (const std::optional<HoldReason> reason = holdReason()) {
        AppLog::write("Orvello VAD: AEC held (%@) — raw mic tap", reason->logText());
        startFallback(RawPathCause::EnvironmentHoldsAec, reason);
    } else if (m_voiceProcessing.start()) {
        publish(m_isListening, true, &VoiceActivityEngine::isListeningChanged);
        publish(m_aecActive, true, &VoiceActivityEngine::aecActiveChanged);
        publish(m_aecHoldReason, {}, &VoiceActivityEngine::aecHoldReasonChanged);
        AppLog::write("Orvello VAD listening (VPIO, AEC on)");
    } else {
        m_voiceProcessing.dispose();
        startFallback(RawPathCause::VoiceProcessingFailed, {});
    }
    startWatchdog();
}

void VoiceActivityEngine::stop()
{
    const bool wasDead = isDead();
    m_patience.reset();
    m_watchdog.reset();
    if (wasDead)
        Q_EMIT statusChanged();
    if (!m_isListening)
        return;
    stopCurrentCapture();
    publish(m_isListening, false, &VoiceActivityEngine::isListeningChanged);
    publish(m_aecActive, false, &VoiceActivityEngine::aecActiveChanged);
    publish(m_aecHoldReason, {}, &VoiceActivityEngine::aecHoldReasonChanged);
    fallSilent();
}

/// Once nothing is captured.
void VoiceActivityEngine::fallSilent()
{
    m_detector.stopSpeaking();
    // What the audio thread reported before it ended takes effect before the reset, and what a new
    // start reports takes effect after it.
    const auto reset = [this, reports = m_reports.takeAll()] {
        for (const BlockReport& report : reports)
            apply(report);
        publish(m_isSpeaking, false, &VoiceActivityEngine::isSpeakingChanged);
        publish(m_level, 0.0f, &VoiceActivityEngine::levelChanged);
    };
    QMetaObject::invokeMethod(this, reset, Qt::QueuedConnection);
}

std::optional<VoiceActivityEngine::HoldReason> VoiceActivityEngine::holdReason() const
{
    if (m_ports.micActivity.otherProcessCapturingInput())
        return HoldReason {};
    if (const std::optional<QString> name = runningMeetingAppName())
        return HoldReason { *name };
    return std::nullopt;
}

QString VoiceActivityEngine::HoldReason::logText() const
{
    return meetingApp.isEmpty() ? u"another app is using the microphone"_s
                                : meetingApp + u" is open"_s;
}

std::optional<QString> VoiceActivityEngine::aecHoldReason() const
{
    return m_aecHoldReason ? std::optional(m_aecHoldReason->logText()) : std::nullopt;
}

QString VoiceActivityEngine::aecHoldReasonForPeople() const
{
    if (!m_aecHoldReason)
        return {};
    //: Stands in brackets in the middle of a sentence.
    if (m_aecHoldReason->meetingApp.isEmpty())
        return tr("another app is using the microphone");
    //: Stands in brackets in the middle of a sentence. %1: a meeting program.
    return tr("%1 is open").arg(m_aecHoldReason->meetingApp);
}

std::optional<QString> VoiceActivityEngine::runningMeetingAppName() const
{
    for (const RunningApplication& application : m_ports.workspace.runningApplications()) {
        const std::optional<QString>& identifier = application.bundleIdentifier;
        if (identifier && MeetingApplications::contain(*identifier))
            return application.localizedName.value_or(*identifier);
    }
    return std::nullopt;
}

void VoiceActivityEngine::startWatchdog()
{
    m_watchdog = m_ports.time.callEvery(watchdogSeconds, [this] { watchdogTick(); });
    if (isDead())
        Q_EMIT statusChanged();
}

void VoiceActivityEngine::watchdogTick()
{
    if (!m_isListening)
        return;
    noticeSilence();
    onMicrophonesChanged(); // Where the system does not say when, it is seen here.
    const std::optional<HoldReason> reason = holdReason();
    if (m_aecActive && reason) {
        AppLog::write(
            "Orvello VAD: dropping AEC (%@) — switching to raw mic tap", reason->logText());
        stopCurrentCapture();
        startFallback(RawPathCause::EnvironmentHoldsAec, reason);
        m_clearPolls = 0;
    } else if (m_usingFallback && m_fallbackIsEnvironmental) {
        reconsiderHold(reason);
    }
}

/// Nobody speaks into a microphone from which nothing comes, whatever it was that it said last.
void VoiceActivityEngine::noticeSilence()
{
    applyPendingReports(); // After a stall of the main loop they are only late.
    if (std::exchange(m_hasHeard, false) || !m_isSpeaking)
        return;
    m_hasGap.store(true, std::memory_order_relaxed);
    apply({ .levelDecay = 0,
        .isSpeaking = false,
        .threshold = Loudness::speechThreshold(m_settings.voiceSensitivity()) });
}

void VoiceActivityEngine::reconsiderHold(const std::optional<HoldReason>& reason)
{
    if (reason) {
        m_clearPolls = 0;
        publish(m_aecHoldReason, reason, &VoiceActivityEngine::aecHoldReasonChanged);
        return;
    }
    if (++m_clearPolls < clearPollsBeforeAec)
        return;
    AppLog::write("Orvello VAD: environment clear — re-engaging AEC");
    stopCurrentCapture();
    if (m_voiceProcessing.start()) {
        publish(m_aecActive, true, &VoiceActivityEngine::aecActiveChanged);
        publish(m_aecHoldReason, {}, &VoiceActivityEngine::aecHoldReasonChanged);
    } else {
        m_voiceProcessing.dispose();
        startFallback(RawPathCause::VoiceProcessingFailed, {});
    }
    m_clearPolls = 0;
}

void VoiceActivityEngine::stopCurrentCapture()
{
    if (m_usingFallback) {
        m_ports.rawMicrophone.removeTap();
        m_ports.rawMicrophone.stop();
        m_usingFallback = false;
    } else {
        m_voiceProcessing.dispose();
    }
}

void VoiceActivityEngine::startFallback(RawPathCause cause, const std::optional<HoldReason>& reason)
{
    RawMicrophone& microphone = m_ports.rawMicrophone;
    if (!(microphone.sampleRate() > 0)) {
        AppLog::write("Orvello VAD: no usable input device");
        publish(m_isListening, false, &VoiceActivityEngine::isListeningChanged);
        fallSilent();
        return;
    }
    microphone.removeTap();
    microphone.installTap(rawBlockFrames, *this);
    if (const auto started = microphone.start(); !started) {
        microphone.removeTap();
        publish(m_isListening, false, &VoiceActivityEngine::isListeningChanged);
        AppLog::write("Orvello VAD failed to start: %@", started.error());
        fallSilent();
        return;
    }
    m_usingFallback = true;
    m_fallbackIsEnvironmental = cause == RawPathCause::EnvironmentHoldsAec;
    publish(m_isListening, true, &VoiceActivityEngine::isListeningChanged);
    publish(m_aecActive, false, &VoiceActivityEngine::aecActiveChanged);
    publish(m_aecHoldReason, reason, &VoiceActivityEngine::aecHoldReasonChanged);
    AppLog::write("Orvello VAD listening (raw mic, no AEC%@)",
        reason ? u" — "_s + reason->logText() : QString());
}

void VoiceActivityEngine::onSamples(std::span<const float> samples) noexcept
{
    if (!samples.empty())
        process(samples);
}

void VoiceActivityEngine::process(std::span<const float> samples) noexcept
{
    if (m_hasGap.exchange(false, std::memory_order_relaxed))
        m_detector.forget();
    m_reports.push(m_detector.process(
        samples, m_sensitivity.load(std::memory_order_relaxed), m_ports.time.now()));
    m_reportsArrived.signal();
}

void VoiceActivityEngine::applyPendingReports()
{
    while (const std::optional<BlockReport> report = m_reports.pop()) {
        m_hasHeard = true;
        m_sensitivityTest.hear(report->rootMeanSquare);
        apply(*report);
    }
}

void VoiceActivityEngine::apply(const BlockReport& report)
{
    publish(m_level, report.smoothed(m_level), &VoiceActivityEngine::levelChanged);
    if (m_isSpeaking == report.isSpeaking)
        return;
    publish(m_isSpeaking, report.isSpeaking, &VoiceActivityEngine::isSpeakingChanged);
    AppLog::write("Orvello VAD speaking=%d rms=%.4f thr=%.4f", report.isSpeaking ? 1 : 0,
        report.rootMeanSquare, report.threshold);
}

} // namespace Orvello
