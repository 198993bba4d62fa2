#include "Orvello/Platform/macOS/EngineMicrophone.h"

#include "Orvello/Platform/macOS/CocoaText.h"

#include <mutex>
#include <span>

#import <AVFoundation/AVFoundation.h>

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

struct EngineMicrophone::Engine {
    AVAudioEngine* engine = [[AVAudioEngine alloc] init];
    id<NSObject> configurationObserver = nil;
    std::shared_ptr<TapOutlet> outlet; ///< While there is a tap.
    AVAudioFrameCount blockFrames = 0;
    QString tapError; ///< Why the tap could not be installed; start() reports it.
    bool isStarted = false;

    void installTap();
    void removeTap();
    Result<std::monostate, QString> start();
    void restart();
};

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

/// Another device, or another format of the same one, has stopped the engine and made the tap's
/// format wrong.
void EngineMicrophone::Engine::restart()
{
    if (!isStarted || !outlet)
        return;
    removeTap();
    installTap();
    static_cast<void>(start()); // Without a device there is nothing to hear until one comes.
}

EngineMicrophone::EngineMicrophone()
    : m_engine(std::make_shared<Engine>())
{
    // A notification that already waits in the main queue comes even after its observer has gone.
    const std::weak_ptr<Engine> waiting = m_engine;
    m_engine->configurationObserver = [NSNotificationCenter.defaultCenter
        addObserverForName:AVAudioEngineConfigurationChangeNotification
                    object:m_engine->engine
                     queue:NSOperationQueue.mainQueue
                usingBlock:^(NSNotification*) {
                    if (const auto engine = waiting.lock())
                        engine->restart();
                }];
}

EngineMicrophone::~EngineMicrophone()
{
    [NSNotificationCenter.defaultCenter removeObserver:m_engine->configurationObserver];
    removeTap();
    stop();
}

double EngineMicrophone::sampleRate()
{
    @try {
        return [m_engine->engine.inputNode outputFormatForBus:inputBus].sampleRate;
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

void EngineMicrophone::stop()
{
    m_engine->isStarted = false;
    [m_engine->engine stop];
}

} // namespace Orvello
