#include "Orvello/Adapters/macOS/Early/PropertyList.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"

namespace Orvello::PropertyList {

namespace {

/// An object that the program passes on without reading it.
struct StoredObject {
    id object = nil;
};

QVariant numberValue(NSNumber* number)
{
    if (CFGetTypeID((__bridge CFTypeRef)number) == CFBooleanGetTypeID())
        return static_cast<bool>(number.boolValue);
    if (CFNumberIsFloatType((__bridge CFNumberRef)number))
        return number.doubleValue;
    return QVariant::fromValue<qlonglong>(number.longLongValue);
}

} // namespace

id object(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return [NSNumber numberWithBool:value.toBool()];
    case QMetaType::Int:
    case QMetaType::LongLong:
        return [NSNumber numberWithLongLong:value.toLongLong()];
    case QMetaType::Double:
        return [NSNumber numberWithDouble:value.toDouble()];
    case QMetaType::QString:
        return nsString(value.toString());
    default:
        return value.value<StoredObject>().object;
    }
}

QVariant value(id object)
{
    if ([object isKindOfClass:[NSNumber class]])
        return numberValue(object);
    if ([object isKindOfClass:[NSString class]])
        return qString(object);
    return object ? QVariant::fromValue(StoredObject { object }) : QVariant();
}

} // namespace Orvello::PropertyList
