#pragma once

#include <QString>

#import <Foundation/Foundation.h>

namespace Orvello {

/// The same UTF-16 units in the other kind of string. (QString::toNSString does this too, but Qt
/// declares it on macOS only, where the type check on Linux would not see it.)
[[nodiscard]] NSString* _Nonnull nsString(const QString& text);

[[nodiscard]] QString qString(NSString* _Nullable text); ///< Empty for nil.

} // namespace Orvello
