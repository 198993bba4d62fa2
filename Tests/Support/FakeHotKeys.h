#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"
#include "Tests/Support/Journal.h"

#include <map>
#include <utility>
#include <vector>

namespace Orvello::Testing {

/// A keyboard whose keys a test presses.
class FakeHotKeys final : public HotKeys {
public:
    void installHandler(Handler handler) override
    {
        m_handler = std::move(handler);
        ++installations;
    }

    std::unique_ptr<Reference> registerHotKey(const HotKeyRequest& request) override
    {
        const auto& [key, id, purpose] = request;
        note(journal,
            "hot key " + std::to_string(key.keyCode) + " with " + std::to_string(key.modifiers)
                + " as " + std::to_string(id.id));
        registrations.push_back(request);
        if (purpose)
            purposes.push_back(*purpose);
        if (isOwnedByAnother)
            return nullptr;
        registered.emplace(id.id, key);
        return std::make_unique<FakeReference>(*this, id.id);
    }

    /// As a Mac calls them, unless a test says otherwise.
    QString label(const HotKey& key) const override
    {
        const std::map<std::uint32_t, QString> keys { { HotKey::keyP, QStringLiteral("P") },
            { HotKey::keyR, QStringLiteral("R") }, { HotKey::keyH, QStringLiteral("H") },
            { HotKey::keyUp, QStringLiteral("↑") }, { HotKey::keyDown, QStringLiteral("↓") } };
        return (key.modifiers != 0 ? modifiersLabel : QString()) + keys.at(key.keyCode);
    }
    QString modifiersLabel = QStringLiteral("⌥⌘");

    /// Presses a key; does nothing if it is not registered.
    void press(std::uint32_t keyCode, std::uint32_t modifiers)
    {
        const auto keys = registered;
        for (const auto& [id, key] : keys) {
            if (key == HotKey { keyCode, modifiers })
                deliver({ 0x4F56484B, id });
        }
    }

    void deliver(HotKeyID id) { m_handler(id); } ///< What the system sends, whatever is registered.

    Journal* journal = nullptr;

    std::vector<HotKeyRequest> registrations; ///< Every attempt, in order.
    std::vector<HotKeyPurpose> purposes; ///< The purposes of the attempts that named one.
    std::map<std::uint32_t, HotKey> registered; ///< What holds now, by id.
    int installations = 0;
    bool isOwnedByAnother = false;

private:
    class FakeReference final : public Reference {
    public:
        FakeReference(FakeHotKeys& keys, std::uint32_t id)
            : m_keys(keys)
            , m_id(id)
        {
        }
        ~FakeReference() override
        {
            note(m_keys.journal, "hot key " + std::to_string(m_id) + " dropped");
            m_keys.registered.erase(m_id);
        }

    private:
        FakeHotKeys& m_keys;
        std::uint32_t m_id;
    };

    Handler m_handler;
};

} // namespace Orvello::Testing
