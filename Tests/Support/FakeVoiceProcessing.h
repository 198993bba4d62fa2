#pragma once

#include "Orvello/Platform/Sound/VoiceProcessing.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace Orvello::Testing {

/// Voice processing of which each step can fail. At most one unit exists at a time.
class FakeVoiceProcessing final : public VoiceProcessing {
public:
    /// `journal` is shared with the other fakes, so that their order shows.
    explicit FakeVoiceProcessing(std::vector<std::string>& journal)
        : m_journal(journal)
    {
    }

    bool isAvailable() override { return available; }
    Instantiation instantiate(VoiceProcessingUnit::Listener& listener) override
    {
        m_journal.emplace_back("unit instantiate");
        if (failures.contains("instantiate") || givesNoUnit)
            return { failures["instantiate"], nullptr };
        return { 0, std::make_unique<Unit>(*this, listener) };
    }

    bool hasUnit() const { return m_unit != nullptr; }

    /// One block from a running unit.
    void hear(std::span<const float> samples)
    {
        if (m_unit)
            m_unit->hear(samples);
    }

    bool available = true;
    bool givesNoUnit = false;
    bool renders = true;
    /// Error numbers by the names that the journal uses.
    std::map<std::string, VoiceProcessingUnit::Status> failures;

private:
    class Unit final : public VoiceProcessingUnit {
    public:
        Unit(FakeVoiceProcessing& owner, Listener& listener)
            : m_owner(owner)
            , m_listener(listener)
        {
            m_owner.m_unit = this;
        }
        ~Unit() override
        {
            (void)step("dispose");
            m_owner.m_unit = nullptr;
        }

        Status configure(Setting setting) override { return step(nameOf(setting)); }
        Status initialize() override { return step("initialize"); }
        Status start() override
        {
            const Status status = step("start");
            m_isRunning = status == 0;
            return status;
        }
        void stop() override
        {
            (void)step("stop");
            m_isRunning = false;
        }
        void uninitialize() override { (void)step("uninitialize"); }
        Status render(std::span<float> samples) noexcept override
        {
            if (!m_owner.renders)
                return -1;
            std::copy(m_waiting.begin(), m_waiting.end(), samples.begin());
            return 0;
        }

        void hear(std::span<const float> samples)
        {
            m_waiting = samples;
            if (m_isRunning)
                m_listener.onInput(*this, static_cast<std::uint32_t>(samples.size()));
        }

    private:
        Status step(const std::string& name)
        {
            m_owner.m_journal.push_back("unit " + name);
            const auto failure = m_owner.failures.find(name);
            return failure == m_owner.failures.end() ? 0 : failure->second;
        }

        static std::string nameOf(Setting setting)
        {
            switch (setting) {
            case Setting::EnableInput:
                return "enable input";
            case Setting::EnableOutput:
                return "enable output";
            case Setting::MicrophoneFormat:
                return "mic format";
            case Setting::RenderFormat:
                return "render format";
            case Setting::InputCallback:
                return "input callback";
            case Setting::RenderCallback:
                return "render callback";
            case Setting::OtherAudioDucking:
                return "ducking config";
            }
            return {};
        }

        FakeVoiceProcessing& m_owner;
        Listener& m_listener;
        std::span<const float> m_waiting;
        bool m_isRunning = false;
    };

    std::vector<std::string>& m_journal;
    Unit* m_unit = nullptr;
};

} // namespace Orvello::Testing
