#pragma once

#include <QRectF>
#include <QSizeF>

#include <cstdint>
#include <functional>
#include <memory>

namespace Orvello {

/// The window server's capture-exclude shape: a region of a window that screen sharing and
/// recordings leave out. The calls are private to macOS, so each is looked up by name at run time,
/// once; where one is missing, what needs it fails softly. Main thread or any other.
class CaptureExclusion {
public:
    /// A region of the window server, released with the last reference.
    using Region = std::shared_ptr<const void>;

    /// The address of the function with that name, or null.
    using LookUp = std::function<void*(const char* name)>;

    /// How much wider and higher than the window its shape is, in points, so that growth and the
    /// shadow stay covered until the next application.
    static constexpr double margin = 200;

    /// Looks among everything that is loaded into this process.
    static void* lookUpInProcess(const char* name);

    explicit CaptureExclusion(const LookUp& lookUp = &lookUpInProcess);

    /// Whether the connection, the exclude-shape call and at least one of the two region makers
    /// were found.
    [[nodiscard]] bool isUsable() const;

    /// Whether the connection and the exclude-shape call were found: enough to clear a shape.
    [[nodiscard]] bool canSetShape() const;

    /// A region that covers `rect`, in points of the window; null if it cannot be made.
    [[nodiscard]] Region makeRegion(const QRectF& rect) const;

    /// Excludes the window with this number and size from captures, or ends that. Returns whether
    /// the window server accepted the call; false for a window number below 1. A number beyond 32
    /// bits is the caller's mistake and ends the process.
    bool setExcluded(bool on, qint64 windowNumber, QSizeF windowSize) const;

private:
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

    static WindowID checkedWindowID(qint64 windowNumber);
    Region owned(const void* region) const;

    // Declarations of the private calls as other open-source window tools use them; regions are
    // CoreFoundation objects.
    ConnectionID (*m_mainConnectionID)();
    ErrorCode (*m_setWindowCaptureExcludeShape)(ConnectionID, WindowID, const void* region);
    const void* (*m_regionCreateWithRect)(ServerRect);
    ErrorCode (*m_newRegionWithRect)(const ServerRect*, const void** region);
    void (*m_release)(const void*);
};

} // namespace Orvello
