#include "Orvello/Prompting/Panel/CaptureExclusion.h"

#include <dlfcn.h>
#include <limits>

namespace Orvello {

namespace {

constexpr std::int32_t success = 0;

template <typename Function>
void assign(Function& function, void* address)
{
    function = reinterpret_cast<Function>(address);
}

} // namespace

void* CaptureExclusion::lookUpInProcess(const char* name) { return ::dlsym(RTLD_DEFAULT, name); }

CaptureExclusion::CaptureExclusion(const LookUp& lookUp)
{
    assign(m_mainConnectionID, lookUp("CGSMainConnectionID"));
    assign(m_setWindowCaptureExcludeShape, lookUp("CGSSetWindowCaptureExcludeShape"));
    assign(m_regionCreateWithRect, lookUp("CGRegionCreateWithRect"));
    assign(m_newRegionWithRect, lookUp("CGSNewRegionWithRect"));
    assign(m_release, lookUp("CFRelease"));
}

CaptureExclusion::Region CaptureExclusion::owned(const void* region) const
{
    if (!region)
        return nullptr;
    return { region, [release = m_release](const void* last) {
                if (release)
                    release(last);
            } };
}

CaptureExclusion::WindowID CaptureExclusion::checkedWindowID(qint64 windowNumber)
{
    if (windowNumber > std::numeric_limits<std::int32_t>::max())
        qFatal("window number %lld does not fit 32 bits", static_cast<long long>(windowNumber));
    return static_cast<WindowID>(windowNumber);
}

bool CaptureExclusion::canSetShape() const
{
    return m_mainConnectionID && m_setWindowCaptureExcludeShape;
}

bool CaptureExclusion::isUsable() const
{
    return canSetShape() && (m_regionCreateWithRect || m_newRegionWithRect);
}

CaptureExclusion::Region CaptureExclusion::makeRegion(const QRectF& rect) const
{
    const ServerRect serverRect { rect.x(), rect.y(), rect.width(), rect.height() };
    if (m_regionCreateWithRect)
        return owned(m_regionCreateWithRect(serverRect));
    if (m_newRegionWithRect) {
        const void* region = nullptr;
        if (m_newRegionWithRect(&serverRect, &region) == success)
            return owned(region);
    }
    return nullptr;
}

bool CaptureExclusion::setExcluded(bool on, qint64 windowNumber, QSizeF windowSize) const
{
    if (!canSetShape())
        return false;
    const ConnectionID connection = m_mainConnectionID();
    const WindowID window = windowNumber < 1 ? 0 : checkedWindowID(windowNumber);
    if (window < 1)
        return false;
    if (!on)
        return m_setWindowCaptureExcludeShape(connection, window, nullptr) == success;
    const Region region
        = makeRegion({ 0, 0, windowSize.width() + margin, windowSize.height() + margin });
    return region && m_setWindowCaptureExcludeShape(connection, window, region.get()) == success;
}

} // namespace Orvello
