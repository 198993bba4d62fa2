#include "Orvello/Adapters/Linux/Desktop/HardwareRenderer.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <QByteArray>
#include <QDir>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <array>
#include <string_view>
#include <unistd.h>
#include <xcb/xcb.h>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

bool canBeUsed(const QString& device)
{
    return ::access(QFile::encodeName(device).constData(), R_OK | W_OK) == 0;
}

/// The kernel has a node for each graphics processor that can draw; NVIDIA's own driver has
/// another.
bool hasDevice()
{
    if (canBeUsed(u"/dev/nvidiactl"_s))
        return true;
    const QDir nodes(u"/dev/dri"_s);
    return std::ranges::any_of(nodes.entryList({ u"renderD*"_s }, QDir::System),
        [&](const QString& name) { return canBeUsed(nodes.filePath(name)); });
}

/// A virtual X server has hardware behind it only if it lets its clients draw by themselves.
bool doesServerShareIt()
{
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    bool isShared = false;
    for (const std::string_view extension : { "DRI3", "DRI2", "NV-GLX" }) {
        const auto reply = Xcb::owned(xcb_query_extension_reply(connection,
            xcb_query_extension(
                connection, static_cast<std::uint16_t>(extension.size()), extension.data()),
            nullptr));
        isShared = isShared || (reply && reply->present);
    }
    xcb_disconnect(connection);
    return isShared;
}

/// Empty when OpenGL cannot be started at all.
QByteArray rendererName()
{
    QOpenGLContext context;
    QOffscreenSurface surface;
    surface.create();
    if (!context.create() || !context.makeCurrent(&surface))
        return {};
    return reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER));
}

} // namespace

bool HardwareRenderer::isThere()
{
    if (!hasDevice() || !doesServerShareIt())
        return false;
    const QByteArray name = rendererName();
    return !name.isEmpty() && !isSoftware(name);
}

bool HardwareRenderer::isSoftware(QByteArrayView name)
{
    const QByteArray lower = name.toByteArray().toLower();
    constexpr std::array known { "llvmpipe", "softpipe", "swrast", "software rasterizer",
        "openswr" };
    return std::ranges::any_of(known, [&](const char* part) { return lower.contains(part); });
}

} // namespace Orvello
