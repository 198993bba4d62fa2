// The audio thread against the main thread; ThreadSanitizer watches.

#include "Tests/Voice/VoiceFixture.h"

#include <atomic>
#include <thread>

namespace Orvello {
namespace {

/// A raw microphone with a thread of its own that hears a loud signal in blocks of 64 to 16,384
/// frames, as fast as it can.
class ThreadedMicrophone final : public RawMicrophone {
public:
    ~ThreadedMicrophone() override { removeTap(); }

    double sampleRate() override { return 48000; }
    void installTap(int, SampleListener& listener) override { m_listener = &listener; }
    void removeTap() override
    {
        stop();
        m_listener = nullptr;
    }
    Result<std::monostate, QString> start() override
    {
        m_isRunning = true;
        m_thread = std::thread([this] { run(); });
        return std::monostate {};
    }
    void stop() override
    {
        m_isRunning = false;
        if (m_thread.joinable())
            m_thread.join();
    }

    std::atomic<int> blocksHeard = 0;

private:
    void run()
    {
        const std::vector<float> samples(16384, 0.5f);
        for (std::size_t frames = 64; m_isRunning;
             frames = frames < samples.size() ? frames * 2 : 64) {
            m_listener->onSamples(std::span(samples).first(frames));
            ++blocksHeard;
        }
    }

    SampleListener* m_listener = nullptr;
    std::atomic<bool> m_isRunning = false;
    std::thread m_thread;
};

/// A voice-processing unit with such a thread.
class ThreadedVoiceProcessing final : public VoiceProcessing {
public:
    bool isAvailable() override { return true; }
    Instantiation instantiate(VoiceProcessingUnit::Listener& listener) override
    {
        return { 0, std::make_unique<Unit>(listener) };
    }

private:
    class Unit final : public VoiceProcessingUnit, private SampleListener {
    public:
        explicit Unit(Listener& listener)
            : m_listener(listener)
        {
            m_microphone.installTap(0, *this);
        }
        Status configure(Setting) override { return 0; }
        Status initialize() override { return 0; }
        Status start() override { return m_microphone.start() ? 0 : -1; }
        void stop() override { m_microphone.stop(); }
        void uninitialize() override { }
        Status render(std::span<float> samples) noexcept override
        {
            std::copy(m_waiting.begin(), m_waiting.end(), samples.begin());
            return 0;
        }

    private:
        void onSamples(std::span<const float> samples) noexcept override
        {
            m_waiting = samples;
            m_listener.onInput(*this, static_cast<std::uint32_t>(samples.size()));
        }

        Listener& m_listener;
        std::span<const float> m_waiting;
        ThreadedMicrophone m_microphone;
    };
};

class VoiceThreadsTest : public VoiceFixture {
protected:
    /// Lets the audio thread and the main loop work until something holds.
    template <typename Condition>
    void workUntil(Condition condition)
    {
        while (!condition()) {
            time.advance(0.01);
            Testing::drainEvents();
        }
    }

    ThreadedMicrophone threadedMicrophone;
    ThreadedVoiceProcessing threadedVoiceProcessing;
    VoiceActivityEngine threadedEngine { settings,
        { time, permission, threadedVoiceProcessing, threadedMicrophone, micActivity, microphones,
            workspace } };
};

TEST_F(VoiceThreadsTest, startsAndStopsUnderLoad)
{
    for (int round = 0; round < 12; ++round) {
        micActivity.otherProcessCaptures = round % 2 == 0;
        settings.setVoiceSensitivity(round % 3 == 0 ? 0.2 : 0.8);
        threadedEngine.requestPermissionAndStart();
        workUntil([this] { return threadedEngine.isSpeaking(); });
        threadedEngine.stop();
        Testing::drainEvents();
        EXPECT_FALSE(threadedEngine.isSpeaking());
        EXPECT_EQ(threadedEngine.level(), 0.0f);
    }
}

TEST_F(VoiceThreadsTest, changesPathsUnderLoad)
{
    threadedEngine.requestPermissionAndStart();
    for (int round = 0; round < 4; ++round) {
        micActivity.otherProcessCaptures = true;
        workUntil([this] { return !threadedEngine.aecActive() && threadedEngine.isSpeaking(); });
        micActivity.otherProcessCaptures = false;
        workUntil([this] { return threadedEngine.aecActive() && threadedEngine.isSpeaking(); });
    }
}

TEST_F(VoiceThreadsTest, survivesAStalledMainLoop)
{
    micActivity.otherProcessCaptures = true;
    threadedEngine.requestPermissionAndStart();
    // The clock waits for the blocks, or seconds would go by without any.
    for (int heard = 0; heard < 5000; heard = threadedMicrophone.blocksHeard)
        if (threadedMicrophone.blocksHeard != heard)
            time.advance(0.001);

    workUntil([this] { return threadedEngine.isSpeaking(); });

    EXPECT_NEAR(threadedEngine.level(), 1.0f, 1e-5f);
    EXPECT_EQ(log.lines().size(), 3u);
}

} // namespace
} // namespace Orvello
