#pragma once

#include <QVariant>

#import <Foundation/Foundation.h>

/// Preference values as the objects that user defaults store, and back. Booleans, integers and
/// doubles stay what they are, although all three are kept as NSNumber.
namespace Orvello::PropertyList {

/// Nil for a value, or one with a value inside it, of a type that user defaults cannot store.
[[nodiscard]] id _Nullable object(const QVariant& value);

/// Invalid for nil and for an object of a type that no preference has.
[[nodiscard]] QVariant value(id _Nullable object);

[[nodiscard]] QVariantMap map(NSDictionary<NSString*, id>* _Nullable dictionary);

} // namespace Orvello::PropertyList
