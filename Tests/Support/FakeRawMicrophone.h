#pragma once

#include "Orvello/Platform/Sound/RawMicrophone.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Orvello::Testing {

/// Hears what a test plays to it and remembers what was asked of it.
class FakeRawMicrophone final : public RawMicrophone {
public:
    /// `journal` is shared with the other fakes, so that their order shows.
    explicit FakeRawMicrophone(std::vector<std::string>& journal)
        : m_journal(journal)
    {
    }

    double sampleRate() override { return rate; }
    void installTap(int blockFrames, SampleListener& listener) override
    {
        m_journal.push_back("raw installTap " + std::to_string(blockFrames));
        m_listener = &listener;
    }
    void removeTap() override
    {
        m_journal.emplace_back("raw removeTap");
        m_listener = nullptr;
    }
    Result<std::monostate, QString> start() override
    {
        m_journal.emplace_back("raw start");
        if (startError)
            return Failure { *startError };
        isRunning = true;
        return std::monostate {};
    }
    void stop() override
    {
        m_journal.emplace_back("raw stop");
        isRunning = false;
    }

    bool hasTap() const { return m_listener != nullptr; }

    /// One buffer, heard only while the microphone runs with a tap.
    void hear(std::span<const float> samples)
    {
        if (m_listener && isRunning)
            m_listener->onSamples(samples);
    }

    double rate = 48000;
    std::optional<QString> startError;
    bool isRunning = false;

private:
    std::vector<std::string>& m_journal;
    SampleListener* m_listener = nullptr;
};

} // namespace Orvello::Testing
