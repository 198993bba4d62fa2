#include "Orvello/Adapters/Linux/Early/PreferencesCoding.h"

#include "Orvello/Foundation/Date.h"
#include "Orvello/Foundation/JsonReader.h"
#include "Orvello/Foundation/JsonWriter.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Orvello::PreferencesCoding {

using namespace Qt::StringLiterals;

namespace {

const QString dataTag = u"$data"_s;
const QString dateTag = u"$date"_s;
const QString doubleTag = u"$double"_s;

double secondsSinceReferenceDate(const QDateTime& date)
{
    return Date::fromUnixSeconds(static_cast<double>(date.toMSecsSinceEpoch()) / 1000)
        .secondsSinceReferenceDate;
}

/// Invalid for a moment more than some 30,000 years away, which QDateTime might not hold.
QVariant dateAt(double secondsSinceReferenceDate)
{
    if (std::abs(secondsSinceReferenceDate) > 1e12)
        return {};
    const double milliseconds = Date { secondsSinceReferenceDate }.unixSeconds() * 1000;
    return QDateTime::fromMSecsSinceEpoch(std::llround(milliseconds), Qt::UTC);
}

void append(QByteArray& json, const QVariant& value);

void append(QByteArray& json, const QVariantList& list)
{
    json += '[';
    for (const QVariant& value : list) {
        if (&value != &list.front())
            json += ", ";
        append(json, value);
    }
    json += ']';
}

void append(QByteArray& json, const QVariantMap& map)
{
    json += '{';
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        if (entry != map.begin())
            json += ", ";
        Json::appendString(json, entry.key().startsWith(u'$') ? u'$' + entry.key() : entry.key());
        json += ": ";
        append(json, entry.value());
    }
    json += '}';
}

void appendDouble(QByteArray& json, double number)
{
    if (!std::isfinite(number)) {
        json += R"({"$double": ")" + QByteArray::number(number) + "\"}";
        return;
    }
    const qsizetype start = json.size();
    Json::appendNumber(json, number);
    const auto digits = QByteArrayView(json).sliced(start);
    if (!digits.contains('.') && !digits.contains('e'))
        json += ".0";
}

void append(QByteArray& json, const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        json += value.toBool() ? "true" : "false";
        return;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        json += QByteArray::number(value.toLongLong());
        return;
    case QMetaType::ULongLong:
        json += QByteArray::number(value.toULongLong());
        return;
    case QMetaType::Float:
    case QMetaType::Double:
        appendDouble(json, value.toDouble());
        return;
    case QMetaType::QString:
        Json::appendString(json, value.toString());
        return;
    case QMetaType::QByteArray:
        json += R"({"$data": ")" + value.toByteArray().toBase64() + "\"}";
        return;
    case QMetaType::QDateTime:
        json += "{\"$date\": ";
        Json::appendNumber(json, secondsSinceReferenceDate(value.toDateTime()));
        json += '}';
        return;
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        append(json, value.toList());
        return;
    case QMetaType::QVariantMap:
        append(json, value.toMap());
        return;
    default:
        json += "null";
    }
}

QVariant number(std::string_view digits)
{
    const QByteArrayView view(digits.data(), static_cast<qsizetype>(digits.size()));
    if (!view.contains('.') && !view.contains('e') && !view.contains('E')) {
        bool fits = false;
        if (const qint64 integer = view.toLongLong(&fits); fits)
            return integer;
        if (const quint64 integer = view.toULongLong(&fits); fits)
            return integer;
    }
    const std::optional<double> number = Json::finite(digits);
    return number ? QVariant(*number) : QVariant();
}

/// The value that a tag introduces; invalid if it introduces none.
QVariant taggedValue(const QString& tag, const QVariant& value)
{
    const bool isText = value.typeId() == QMetaType::QString;
    const bool isNumber
        = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::LongLong;
    if (tag == dataTag && isText) {
        const auto data = QByteArray::fromBase64Encoding(
            value.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        return data ? QVariant(*data) : QVariant();
    }
    if (tag == dateTag && isNumber)
        return dateAt(value.toDouble());
    if (tag == doubleTag && isText) {
        bool isDouble = false;
        const double number = value.toString().toDouble(&isDouble);
        return isDouble ? QVariant(number) : QVariant();
    }
    return {};
}

/// Takes away the dollar sign that keeps a map's own keys apart from the tags.
QVariantMap withPlainKeys(const QVariantMap& map)
{
    QVariantMap plain;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        plain.insert(
            entry.key().startsWith(u"$$") ? entry.key().sliced(1) : entry.key(), entry.value());
    return plain;
}

/// Builds the values from the inside out.
class PreferencesDecoder final : public JsonHandler {
public:
    QVariantMap takePreferences() { return std::move(m_preferences); }

    bool null() override { return add(QVariant::fromValue(nullptr)); }
    bool boolean(bool value) override { return add(value); }
    bool number(std::string_view digits) override
    {
        const QVariant value = PreferencesCoding::number(digits);
        return value.isValid() && add(value);
    }
    bool string(std::string_view text) override { return add(Json::text(text)); }
    bool key(std::string_view name) override
    {
        m_open.back().key = Json::text(name);
        return true;
    }
    bool beginObject() override { return open(); }
    bool beginArray() override { return !m_open.empty() && open(); }
    bool endObject() override;
    bool endArray() override;

private:
    struct Container {
        QVariantMap map;
        QVariantList list;
        std::optional<QString> key; ///< Of the entry being read; none in a list.
    };

    bool open()
    {
        // A QVariant is destroyed recursively.
        constexpr std::size_t maximumDepth = 500;
        m_open.emplace_back();
        return m_open.size() <= maximumDepth;
    }
    bool add(const QVariant& value);

    QVariantMap m_preferences;
    std::vector<Container> m_open; ///< Outermost first.
};

bool PreferencesDecoder::add(const QVariant& value)
{
    if (m_open.empty())
        return false; // The document itself is no object.
    Container& container = m_open.back();
    if (!container.key)
        container.list.append(value);
    else if (!container.map.contains(*container.key))
        container.map.insert(*container.key, value);
    return true;
}

bool PreferencesDecoder::endObject()
{
    const QVariantMap map = std::move(m_open.back().map);
    m_open.pop_back();
    if (m_open.empty()) {
        m_preferences = withPlainKeys(map);
        return true;
    }
    if (map.size() == 1) {
        if (const QVariant value = taggedValue(map.firstKey(), map.first()); value.isValid())
            return add(value);
    }
    return add(withPlainKeys(map));
}

bool PreferencesDecoder::endArray()
{
    const QVariantList list = std::move(m_open.back().list);
    m_open.pop_back();
    return add(list);
}

} // namespace

QByteArray encode(const QVariantMap& preferences)
{
    QByteArray json;
    append(json, preferences);
    json += '\n';
    return json;
}

std::optional<QVariantMap> decode(QByteArray json)
{
    PreferencesDecoder decoder;
    if (!Json::read(std::move(json), decoder))
        return std::nullopt;
    return decoder.takePreferences();
}

bool isStorable(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QStringList:
    case QMetaType::Nullptr:
        return true;
    case QMetaType::QDateTime:
        return value.toDateTime().isValid();
    case QMetaType::QVariantList:
        return std::ranges::all_of(value.toList(), isStorable);
    case QMetaType::QVariantMap:
        return std::ranges::all_of(value.toMap(), isStorable);
    default:
        return false;
    }
}

} // namespace Orvello::PreferencesCoding
