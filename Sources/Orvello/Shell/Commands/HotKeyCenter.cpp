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
    std::uint32_t keyCode, std::uint32_t modifiers, Action action)
{
    return add(std::move(action),
        [&](HotKeyID key) { return m_system.registerHotKey(keyCode, modifiers, key); });
}

std::uint32_t HotKeyCenter::registerHotKeyFor(
    const HotKeyPurpose& purpose, std::uint32_t keyCode, std::uint32_t modifiers, Action action)
{
    return add(std::move(action),
        [&](HotKeyID key) { return m_system.registerHotKeyFor(purpose, keyCode, modifiers, key); });
}

std::uint32_t HotKeyCenter::add(Action action, const Registration& registration)
{
    if (!m_installed) {
        m_installed = true;
        m_system.installHandler([this](HotKeyID key) { pressed(key); });
    }
    if (m_nextID == std::numeric_limits<std::uint32_t>::max())
        qFatal("HotKeyCenter: no hot-key id is left");
    const std::uint32_t id = m_nextID++;
    m_actions.emplace(id, std::move(action));
    if (auto reference = registration({ signature, id }))
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
