#pragma once

#include "Orvello/Platform/Early/SystemLog.h"
#include "Tests/Support/Journal.h"

#include <mutex>
#include <string>
#include <vector>

namespace Orvello::Testing {

/// Remembers every message.
class FakeSystemLog final : public SystemLog {
public:
    void write(std::string_view message) override
    {
        const std::scoped_lock lock(m_mutex);
        m_messages.emplace_back(message);
        note(journal, "log " + std::string(message));
    }

    std::vector<std::string> messages() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_messages;
    }

    Journal* journal = nullptr;

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_messages;
};

} // namespace Orvello::Testing
