#include "Orvello/Prompting/Panel/CaptureExclusion.h"

#include <cstdint>
#include <dlfcn.h>
#include <limits>

namespace Orvello::CaptureExclusion {

namespace {

/// The rectangle that the calls take; the same memory layout and calling convention as
/// CoreGraphics' CGRect.
struct ServerRect {
    double x;
    double y;
    double width;
    double height;
};

using ConnectionID = std::uint32_t;
using WindowID = std::uint32_t;
using ErrorCode = std::int32_t;
constexpr ErrorCode success = 0;

// Declarations of the private calls as other open-source window tools use them; regions are
// CoreFoundation objects.
using MainConnectionID = ConnectionID (*)();
using SetWindowCaptureExcludeShape = ErrorCode (*)(ConnectionID, WindowID, const void* region);
using RegionCreateWithRect = const void* (*)(ServerRect);
using NewRegionWithRect = ErrorCode (*)(const ServerRect*, const void** region);
using Release = void (*)(const void*);

template <typename Function>
Function lookUp(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_DEFAULT, name));
}

struct EntryPoints {
    MainConnectionID mainConnectionID = lookUp<MainConnectionID>("CGSMainConnectionID");
    SetWindowCaptureExcludeShape setWindowCaptureExcludeShape
        = lookUp<SetWindowCaptureExcludeShape>("CGSSetWindowCaptureExcludeShape");
    RegionCreateWithRect regionCreateWithRect
        = lookUp<RegionCreateWithRect>("CGRegionCreateWithRect");
    NewRegionWithRect newRegionWithRect = lookUp<NewRegionWithRect>("CGSNewRegionWithRect");
    Release release = lookUp<Release>("CFRelease");
};

const EntryPoints& entryPoints()
{
    static const EntryPoints found;
    return found;
}

Region owned(const void* region)
{
    if (!region)
        return nullptr;
    return { region, [](const void* last) {
                if (entryPoints().release)
                    entryPoints().release(last);
            } };
}

WindowID checkedWindowID(qint64 windowNumber)
{
    if (windowNumber > std::numeric_limits<std::int32_t>::max())
        qFatal("window number %lld does not fit 32 bits", static_cast<long long>(windowNumber));
    return static_cast<WindowID>(windowNumber);
}

} // namespace

bool canSetShape()
{
    return entryPoints().mainConnectionID && entryPoints().setWindowCaptureExcludeShape;
}

bool isUsable()
{
    return canSetShape() && (entryPoints().regionCreateWithRect || entryPoints().newRegionWithRect);
}

Region makeRegion(const QRectF& rect)
{
    const ServerRect serverRect { rect.x(), rect.y(), rect.width(), rect.height() };
    if (entryPoints().regionCreateWithRect)
        return owned(entryPoints().regionCreateWithRect(serverRect));
    if (entryPoints().newRegionWithRect) {
        const void* region = nullptr;
        if (entryPoints().newRegionWithRect(&serverRect, &region) == success)
            return owned(region);
    }
    return nullptr;
}

bool setExcluded(bool on, qint64 windowNumber, QSizeF windowSize)
{
    if (!canSetShape())
        return false;
    const ConnectionID connection = entryPoints().mainConnectionID();
    const WindowID window = windowNumber < 1 ? 0 : checkedWindowID(windowNumber);
    if (window < 1)
        return false;
    if (!on)
        return entryPoints().setWindowCaptureExcludeShape(connection, window, nullptr) == success;
    const Region region
        = makeRegion({ 0, 0, windowSize.width() + margin, windowSize.height() + margin });
    return region
        && entryPoints().setWindowCaptureExcludeShape(connection, window, region.get()) == success;
}

} // namespace Orvello::CaptureExclusion
