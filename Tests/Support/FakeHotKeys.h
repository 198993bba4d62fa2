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
    struct Key {
        std::uint32_t keyCode = 0;
        std::uint32_t modifiers = 0;
        friend auto operator<=>(const Key&, const Key&) = default;
    };

    void installHandler(Handler handler) override
    {
        m_handler = std::move(handler);
        ++installations;
    }

    std::unique_ptr<Reference> registerHotKey(
        std::uint32_t keyCode, std::uint32_t modifiers, HotKeyID id) override
    {
        note(journal,
            "hot key " + std::to_string(keyCode) + " with " + std::to_string(modifiers) + " as "
                + std::to_string(id.id));
        registrations.push_back({ id, { keyCode, modifiers } });
        if (isOwnedByAnother)
            return nullptr;
        registered.emplace(id.id, Key { keyCode, modifiers });
        return std::make_unique<FakeReference>(*this, id.id);
    }

    std::unique_ptr<Reference> registerHotKeyFor(const HotKeyPurpose& purpose,
        std::uint32_t keyCode, std::uint32_t modifiers, HotKeyID id) override
    {
        purposes.push_back(purpose);
        return registerHotKey(keyCode, modifiers, id);
    }

    /// As a Mac calls them, unless a test says otherwise.
    QString label(std::uint32_t keyCode, std::uint32_t modifiers) const override
    {
        const std::map<std::uint32_t, QString> keys { { HotKey::keyP, QStringLiteral("P") },
            { HotKey::keyR, QStringLiteral("R") }, { HotKey::keyH, QStringLiteral("H") },
            { HotKey::keyUp, QStringLiteral("↑") }, { HotKey::keyDown, QStringLiteral("↓") } };
        return (modifiers != 0 ? modifiersLabel : QString()) + keys.at(keyCode);
    }
    QString modifiersLabel = QStringLiteral("⌥⌘");

    /// Presses a key; does nothing if it is not registered.
    void press(std::uint32_t keyCode, std::uint32_t modifiers)
    {
        const auto keys = registered;
        for (const auto& [id, key] : keys) {
            if (key == Key { keyCode, modifiers })
                deliver({ 0x4F56484B, id });
        }
    }

    void deliver(HotKeyID id) { m_handler(id); } ///< What the system sends, whatever is registered.

    Journal* journal = nullptr;

    struct Registration {
        HotKeyID id;
        Key key;
    };
    std::vector<Registration> registrations; ///< Every attempt, in order.
    std::vector<HotKeyPurpose> purposes; ///< The purposes of the attempts that named one.
    std::map<std::uint32_t, Key> registered; ///< What holds now, by id.
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
