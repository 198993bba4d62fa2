#pragma once

#include <QRectF>

#import <Foundation/Foundation.h>

namespace Orvello {

constexpr QRectF qRect(const CGRect& rect)
{
    return { rect.origin.x, rect.origin.y, rect.size.width, rect.size.height };
}

inline CGRect cgRect(const QRectF& rect)
{
    return { { rect.x(), rect.y() }, { rect.width(), rect.height() } };
}

inline CGSize cgSize(const QSizeF& size) { return { size.width(), size.height() }; }

} // namespace Orvello
