#include "Orvello/Adapters/macOS/Sound/EngineMicrophone.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"

#include <QCoreApplication>

#include <mutex>
#include <span>

#import <AVFoundation/AVFoundation.h>
#import <AudioToolbox/AudioToolbox.h>

namespace Orvello {

namespace {

constexpr AVAudioNodeBus inputBus = 0;

/// Where the tap's blocks go. AVFAudio does not say that a block has ended when its tap is removed,
/// so the way to the listener is closed here. The tap's thread is not a real-time one, and waits
/// for nothing but this closing.
class TapOutlet {
public:
    explicit TapOutlet(SampleListener& listener)
        : m_listener(&listener)
    {
    }

    void deliver(AVAudioPCMBuffer* buffer) noexcept
    {
        float* const* const channels = buffer.floatChannelData;
        const AVAudioFrameCount frames = channels ? buffer.frameLength : 0;
        const std::lock_guard lock(m_mutex);
        if (m_listener)
            m_listener->onSamples({ frames > 0 ? channels[0] : nullptr, frames });
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_listener = nullptr;
    }

private:
    std::mutex m_mutex;
    SampleListener* m_listener;
};

QString description(NSException* exception)
{
    return qString(exception.reason ? exception.reason : exception.name);
}

} // namespace

struct EngineMicrophone::Engine : std::enable_shared_from_this<Engine> {
    const HalMicrophones& microphones;
    AVAudioEngine* engine = nil;
    HalMicrophones::DeviceID device = kAudioObjectUnknown; ///< None follows the system's choice.
    id<NSObject> configurationObserver = nil;
    std::shared_ptr<TapOutlet> outlet; ///< While there is a tap.
    AVAudioFrameCount blockFrames = 0;
    QString tapError; ///< Why the tap could not be installed; start() reports it.
    bool isStarted = false;

    explicit Engine(const HalMicrophones& microphones)
        : microphones(microphones)
    {
    }
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    void renew();
    void useChosenDevice();
    void stopObserving();
    void installTap();
    void removeTap();
    Result<std::monostate, QString> start();
    void restart();
    void startAnew();
};

EngineMicrophone::Engine::~Engine() { stopObserving(); }

/// An engine may keep the formats of the device that it met first. A new one asks again.
void EngineMicrophone::Engine::renew()
{
    stopObserving();
    engine = [[AVAudioEngine alloc] init];
    useChosenDevice();
    // The engine posts from a queue of its own, for which its deallocation waits. So the block must
    // not wait for the main thread, as delivery by the main queue would, nor hold the engine.
    const std::weak_ptr<Engine> concerned = weak_from_this();
    configurationObserver = [NSNotificationCenter.defaultCenter
        addObserverForName:AVAudioEngineConfigurationChangeNotification
                    object:engine
                     queue:nil
                usingBlock:^(NSNotification*) {
                    QMetaObject::invokeMethod(
                        QCoreApplication::instance(),
                        [concerned] {
                            if (const auto changed = concerned.lock())
                                changed->restart();
                        },
                        Qt::QueuedConnection);
                }];
}

/// Before anything else is asked of the engine. One that does not take it hears the system's
/// choice.
void EngineMicrophone::Engine::useChosenDevice()
{
    device = microphones.chosenDevice();
    if (device == kAudioObjectUnknown)
        return;
    @try {
        const AudioUnit unit = engine.inputNode.audioUnit;
        if (!unit
            || AudioUnitSetProperty(unit, kAudioOutputUnitProperty_CurrentDevice,
                   kAudioUnitScope_Global, 0, &device, sizeof device)
                != noErr)
            device = kAudioObjectUnknown;
    } @catch (NSException*) {
        device = kAudioObjectUnknown;
    }
}

void EngineMicrophone::Engine::stopObserving()
{
    if (configurationObserver)
        [NSNotificationCenter.defaultCenter removeObserver:configurationObserver];
    configurationObserver = nil;
}

/// AVFAudio raises exceptions where an input has no usable format or a tap already.
void EngineMicrophone::Engine::installTap()
{
    const std::shared_ptr<TapOutlet> tapOutlet = outlet;
    tapError.clear();
    @try {
        // No format: the node's own, whatever the device delivers.
        [engine.inputNode installTapOnBus:inputBus
                               bufferSize:blockFrames
                                   format:nil
                                    block:^(AVAudioPCMBuffer* buffer, AVAudioTime*) {
                                        tapOutlet->deliver(buffer);
                                    }];
    } @catch (NSException* exception) {
        tapError = description(exception);
    }
}

void EngineMicrophone::Engine::removeTap()
{
    @try {
        [engine.inputNode removeTapOnBus:inputBus];
    } @catch (NSException*) {
        // There was none.
    }
}

Result<std::monostate, QString> EngineMicrophone::Engine::start()
{
    if (!tapError.isEmpty())
        return Failure { tapError };
    @try {
        NSError* error = nil;
        if (![engine startAndReturnError:&error])
            return Failure { qString(error.localizedDescription) };
    } @catch (NSException* exception) {
        return Failure { description(exception) };
    }
    isStarted = true;
    return std::monostate {};
}

/// The engine has stopped because the device, or its format, changed.
void EngineMicrophone::Engine::restart()
{
    if (!isStarted || !outlet)
        return;
    removeTap();
    installTap();
    if (!start())
        startAnew();
}

/// Without a device there is nothing to hear until onDeviceChanged().
void EngineMicrophone::Engine::startAnew()
{
    removeTap();
    [engine stop];
    renew();
    installTap();
    static_cast<void>(start());
}

EngineMicrophone::EngineMicrophone(const HalMicrophones& microphones)
    : m_engine(std::make_shared<Engine>(microphones))
{
    m_engine->renew();
}

EngineMicrophone::~EngineMicrophone()
{
    removeTap();
    stop();
}

double EngineMicrophone::sampleRate()
{
    if (!m_engine->outlet)
        m_engine->renew();
    @try {
        AVAudioInputNode* const node = m_engine->engine.inputNode;
        AVAudioFormat* const device = [node inputFormatForBus:inputBus];
        // Without a device the node's output still promises samples.
        if (device.channelCount == 0 || !(device.sampleRate > 0))
            return 0;
        return [node outputFormatForBus:inputBus].sampleRate;
    } @catch (NSException*) {
        return 0; // No input node without an input device.
    }
}

void EngineMicrophone::installTap(int blockFrames, SampleListener& listener)
{
    m_engine->outlet = std::make_shared<TapOutlet>(listener);
    m_engine->blockFrames = static_cast<AVAudioFrameCount>(blockFrames);
    m_engine->installTap();
}

void EngineMicrophone::removeTap()
{
    if (!m_engine->outlet)
        return;
    m_engine->removeTap();
    m_engine->outlet->close();
    m_engine->outlet.reset();
}

Result<std::monostate, QString> EngineMicrophone::start() { return m_engine->start(); }

void EngineMicrophone::onDeviceChanged()
{
    Engine& engine = *m_engine;
    if (!engine.isStarted || !engine.outlet)
        return;
    if (engine.device != engine.microphones.chosenDevice())
        engine.startAnew();
    else if (!engine.engine.running)
        engine.restart();
}

void EngineMicrophone::stop()
{
    m_engine->isStarted = false;
    [m_engine->engine stop];
}

} // namespace Orvello
