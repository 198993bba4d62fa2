#include "Orvello/Adapters/macOS/Early/PropertyList.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Foundation/Date.h"

#include <QDateTime>

#include <cmath>

namespace Orvello::PropertyList {

namespace {

NSDate* nsDate(const QDateTime& date)
{
    const auto seconds = static_cast<double>(date.toMSecsSinceEpoch()) / 1000;
    return [NSDate dateWithTimeIntervalSinceReferenceDate:Date::fromUnixSeconds(seconds)
                                                              .secondsSinceReferenceDate];
}

QDateTime qDateTime(NSDate* date)
{
    const Date moment { date.timeIntervalSinceReferenceDate };
    return QDateTime::fromMSecsSinceEpoch(std::llround(moment.unixSeconds() * 1000), Qt::UTC);
}

NSData* nsData(const QByteArray& bytes)
{
    return [NSData dataWithBytes:bytes.constData() length:static_cast<NSUInteger>(bytes.size())];
}

NSArray<id>* array(const QVariantList& list)
{
    NSMutableArray<id>* objects = [NSMutableArray array];
    for (const QVariant& entry : list) {
        const id entryObject = object(entry);
        if (!entryObject)
            return nil;
        [objects addObject:entryObject];
    }
    return objects;
}

NSDictionary<NSString*, id>* dictionary(const QVariantMap& map)
{
    NSMutableDictionary<NSString*, id>* objects = [NSMutableDictionary dictionary];
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        const id entryObject = object(entry.value());
        if (!entryObject)
            return nil;
        [objects setObject:entryObject forKey:nsString(entry.key())];
    }
    return objects;
}

bool isBoolean(NSNumber* number)
{
    return CFGetTypeID((__bridge CFTypeRef)number) == CFBooleanGetTypeID();
}

QVariant numberValue(NSNumber* number)
{
    if (isBoolean(number))
        return static_cast<bool>(number.boolValue);
    if (CFNumberIsFloatType((__bridge CFNumberRef)number))
        return number.doubleValue;
    const bool needsTheSignBit = number.longLongValue < 0 && number.doubleValue > 0;
    if (needsTheSignBit)
        return QVariant::fromValue<qulonglong>(number.unsignedLongLongValue);
    return QVariant::fromValue<qlonglong>(number.longLongValue);
}

QVariantList list(NSArray<id>* array)
{
    QVariantList values;
    for (id entry in array)
        values.append(value(entry));
    return values;
}

} // namespace

id object(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return [NSNumber numberWithBool:value.toBool()];
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return [NSNumber numberWithLongLong:value.toLongLong()];
    case QMetaType::ULongLong:
        return [NSNumber numberWithUnsignedLongLong:value.toULongLong()];
    case QMetaType::Float:
    case QMetaType::Double:
        return [NSNumber numberWithDouble:value.toDouble()];
    case QMetaType::QString:
        return nsString(value.toString());
    case QMetaType::QByteArray:
        return nsData(value.toByteArray());
    case QMetaType::QDateTime:
        return nsDate(value.toDateTime());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return array(value.toList());
    case QMetaType::QVariantMap:
        return dictionary(value.toMap());
    default:
        return nil;
    }
}

QVariant value(id object)
{
    if ([object isKindOfClass:[NSNumber class]])
        return numberValue(object);
    if ([object isKindOfClass:[NSString class]])
        return qString(object);
    if ([object isKindOfClass:[NSData class]]) {
        NSData* const data = object;
        return QByteArray(
            static_cast<const char*>(data.bytes), static_cast<qsizetype>(data.length));
    }
    if ([object isKindOfClass:[NSDate class]])
        return qDateTime(object);
    if ([object isKindOfClass:[NSArray class]])
        return list(object);
    if ([object isKindOfClass:[NSDictionary class]])
        return map(object);
    return {};
}

QVariantMap map(NSDictionary<NSString*, id>* dictionary)
{
    QVariantMap values;
    for (NSString* key in dictionary)
        values.insert(qString(key), value([dictionary objectForKey:key]));
    return values;
}

} // namespace Orvello::PropertyList
