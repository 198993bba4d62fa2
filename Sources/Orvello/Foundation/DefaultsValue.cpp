#include "Orvello/Foundation/DefaultsValue.h"

#include <cmath>
#include <limits>

namespace Orvello::DefaultsValue {

namespace {

bool isInteger(int type)
{
    return type == QMetaType::Int || type == QMetaType::UInt || type == QMetaType::LongLong
        || type == QMetaType::ULongLong;
}

bool isNumber(int type)
{
    return isInteger(type) || type == QMetaType::Double || type == QMetaType::Float;
}

qint64 truncatedToInteger(double number)
{
    constexpr double limit = 9223372036854775808.0; // 2^63, the first double past the range.
    if (std::isnan(number))
        return 0;
    if (number >= limit)
        return std::numeric_limits<qint64>::max();
    if (number < -limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

qint64 leadingInteger(const QString& text)
{
    const QString trimmed = text.trimmed();
    qsizetype length = trimmed.startsWith(u'-') || trimmed.startsWith(u'+') ? 1 : 0;
    while (length < trimmed.size() && trimmed[length] >= u'0' && trimmed[length] <= u'9')
        ++length;
    bool fits = false;
    const qint64 number = QStringView(trimmed).first(length).toLongLong(&fits);
    if (fits)
        return number;
    return truncatedToInteger(QStringView(trimmed).first(length).toDouble());
}

} // namespace

std::optional<double> asNumber(const QVariant& value)
{
    const int type = value.typeId();
    if (type == QMetaType::Bool)
        return value.toBool() ? 1.0 : 0.0;
    if (isNumber(type))
        return value.toDouble();
    return std::nullopt;
}

std::optional<bool> asBoolean(const QVariant& value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    const std::optional<double> number = asNumber(value);
    if (number == 0.0)
        return false;
    if (number == 1.0)
        return true;
    return std::nullopt;
}

std::optional<QString> asString(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    return std::nullopt;
}

qint64 asInteger(const QVariant& value)
{
    const int type = value.typeId();
    if (type == QMetaType::ULongLong)
        return truncatedToInteger(value.toDouble());
    if (isInteger(type) || type == QMetaType::Bool)
        return value.toLongLong();
    if (isNumber(type))
        return truncatedToInteger(value.toDouble());
    if (type == QMetaType::QString)
        return leadingInteger(value.toString());
    return 0;
}

} // namespace Orvello::DefaultsValue
