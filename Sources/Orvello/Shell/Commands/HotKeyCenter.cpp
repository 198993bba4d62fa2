#include "Orvello/Shell/Commands/HotKeyCenter.h"

#include <QtGlobal>

#include <limits>
#include <utility>

namespace Orvello {

namespace {

HotKeyCenter* sharedCenter = nullptr;

} // namespace

HotKeyCenter& HotKeyCenter::shared()
{
    Q_ASSERT(sharedCenter);
    return *sharedCenter;
}

void HotKeyCenter::adoptShared(HotKeyCenter& center)
{
    Q_ASSERT(!sharedCenter);
    sharedCenter = &center;
}

HotKeyCenter::HotKeyCenter(HotKeys& system, std::uint32_t firstID)
    : m_system(system)
    , m_nextID(firstID)
{
}

HotKeyCenter::~HotKeyCenter()
{
    if (sharedCenter == this)
        sharedCenter = nullptr;
}

std::uint32_t HotKeyCenter::registerHotKey(
    std::uint32_t keyCode, std::uint32_t modifiers, Action action)
{
    if (!m_installed) {
        m_installed = true;
        m_system.installHandler([this](HotKeyID key) { pressed(key); });
    }
    if (m_nextID == std::numeric_limits<std::uint32_t>::max())
        qFatal("HotKeyCenter: no hot-key id is left");
    const std::uint32_t id = m_nextID++;
    m_actions.emplace(id, std::move(action));
    if (auto reference = m_system.registerHotKey(keyCode, modifiers, { signature, id }))
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
