#include "Orvello/Shell/Commands/HotKeyCenter.h"

#include <QtGlobal>

#include <limits>
#include <utility>

namespace Orvello {

HotKeyCenter::HotKeyCenter(HotKeys& system, std::uint32_t firstID)
    : m_system(system)
    , m_nextID(firstID)
{
}

std::uint32_t HotKeyCenter::registerHotKey(
    const HotKey& key, Action action, std::optional<HotKeyPurpose> purpose)
{
    if (!m_installed) {
        m_installed = true;
        m_system.installHandler([this](HotKeyID pressedID) { pressed(pressedID); });
    }
    if (m_nextID == std::numeric_limits<std::uint32_t>::max())
        qFatal("HotKeyCenter: no hot-key id is left");
    const std::uint32_t id = m_nextID++;
    m_actions.emplace(id, std::move(action));
    if (auto reference = m_system.registerHotKey(
            { .key = key, .id = { signature, id }, .purpose = std::move(purpose) }))
        m_refs.emplace(id, std::move(reference));
    return id;
}

void HotKeyCenter::unregister(std::uint32_t id)
{
    m_refs.erase(id);
    m_actions.erase(id);
}

void HotKeyCenter::pressed(HotKeyID key) const
{
    const auto entry = m_actions.find(key.id);
    if (entry == m_actions.end())
        return;
    const Action action = entry->second; // It may unregister itself.
    action();
}

} // namespace Orvello
