#pragma once

#include <QRectF>

#import <AppKit/AppKit.h>

namespace Orvello {

constexpr QRectF qRect(const CGRect& rect)
{
    return { rect.origin.x, rect.origin.y, rect.size.width, rect.size.height };
}

inline CGRect cgRect(const QRectF& rect)
{
    return { { rect.x(), rect.y() }, { rect.width(), rect.height() } };
}

/// A rectangle on the screen with its y counted the other way: AppKit counts upward from the bottom
/// left corner of the primary screen. Its own inverse.
inline QRectF flippedVertically(const QRectF& rect)
{
    const CGFloat height = NSScreen.screens.firstObject.frame.size.height;
    return { rect.x(), height - rect.y() - rect.height(), rect.width(), rect.height() };
}

inline CGSize cgSize(const QSizeF& size) { return { size.width(), size.height() }; }

} // namespace Orvello
