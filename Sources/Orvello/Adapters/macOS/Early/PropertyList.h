#pragma once

#include <QVariant>

#import <Foundation/Foundation.h>

/// Preference values as the objects that user defaults store, and back. Booleans, integers and
/// doubles stay what they are, although all three are kept as NSNumber. Any other object than a
/// number or a string travels unread, so that it can be stored again as it was.
namespace Orvello::PropertyList {

/// Nil for a value that came from nowhere and is neither a number nor a string.
[[nodiscard]] id _Nullable object(const QVariant& value);

/// Invalid for nil.
[[nodiscard]] QVariant value(id _Nullable object);

} // namespace Orvello::PropertyList
