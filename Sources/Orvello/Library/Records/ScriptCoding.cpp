#include "Orvello/Library/Records/ScriptCoding.h"

#include "Orvello/Library/Records/UuidText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orvello::ScriptCoding {

using namespace Qt::StringLiterals;

namespace {

/// A lone surrogate becomes U+FFFD. JSON has an escape for it, but strict readers refuse the file.
QString wellFormed(const QString& text)
{
    if (text.isValidUtf16())
        return text;
    const QList<uint> codePoints = text.toUcs4();
    return QString::fromUcs4(
        reinterpret_cast<const char32_t*>(codePoints.constData()), codePoints.size());
}

QJsonObject object(const SlideNote& note)
{
    QJsonObject object { { u"index"_s, note.index }, { u"notes"_s, wellFormed(note.notes) } };
    if (note.title)
        object[u"title"_s] = wellFormed(*note.title);
    return object;
}

QJsonObject object(const Script& script)
{
    QJsonObject object {
        { u"id"_s, UuidText::format(script.id) },
        { u"title"_s, wellFormed(script.title) },
        { u"body"_s, wellFormed(script.body) },
        { u"createdAt"_s, script.createdAt.secondsSinceReferenceDate },
        { u"updatedAt"_s, script.updatedAt.secondsSinceReferenceDate },
    };
    if (script.slides) {
        QJsonArray slides;
        for (const SlideNote& note : *script.slides)
            slides.append(Orvello::ScriptCoding::object(note));
        object[u"slides"_s] = slides;
    }
    if (script.deckSource)
        object[u"deckSource"_s] = wellFormed(*script.deckSource);
    return object;
}

/// Assigns a value that has the target's type, and returns whether it does.
bool assign(QString& target, const QJsonValue& value)
{
    target = value.toString();
    return value.isString() && target.isValidUtf16();
}

bool assign(QUuid& target, const QJsonValue& value)
{
    const auto id = UuidText::parse(value.toString());
    target = id.value_or(QUuid());
    return id.has_value();
}

bool assign(Date& target, const QJsonValue& value)
{
    target.secondsSinceReferenceDate = value.toDouble();
    return value.isDouble();
}

bool assign(qint64& target, const QJsonValue& value)
{
    target = value.toInteger(0);
    return value.toInteger(1) == target; // For a mismatch it returns the default.
}

bool assign(SlideNote& target, const QJsonValue& value);
bool assign(Script& target, const QJsonValue& value);

template <typename Element>
bool assign(QList<Element>& target, const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    target.reserve(array.size());
    for (const QJsonValue& element : array)
        if (!assign(target.emplace_back(), element))
            return false;
    return value.isArray();
}

/// An optional value may also be null or missing.
template <typename Value>
bool assign(std::optional<Value>& target, const QJsonValue& value)
{
    return value.isNull() || value.isUndefined() || assign(target.emplace(), value);
}

bool assign(SlideNote& target, const QJsonValue& value)
{
    return assign(target.index, value[u"index"]) && assign(target.title, value[u"title"])
        && assign(target.notes, value[u"notes"]);
}

bool assign(Script& target, const QJsonValue& value)
{
    return assign(target.id, value[u"id"]) && assign(target.title, value[u"title"])
        && assign(target.body, value[u"body"]) && assign(target.createdAt, value[u"createdAt"])
        && assign(target.updatedAt, value[u"updatedAt"]) && assign(target.slides, value[u"slides"])
        && assign(target.deckSource, value[u"deckSource"]);
}

} // namespace

QByteArray encode(const Script& script)
{
    QByteArray json = QJsonDocument(object(script)).toJson(QJsonDocument::Compact);
    // Qt drops a byte order mark at the beginning of a text that it reads, unless it is escaped.
    if (json.contains('\xEF')) // Rare, and cheap to check.
        json.replace("\"\uFEFF", "\"\\uFEFF");
    return json;
}

std::optional<QList<Script>> decode(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    QList<Script> scripts;
    if (!document.isArray() || !assign(scripts, document.array()))
        return std::nullopt;
    return scripts;
}

std::optional<Script> decode(const QJsonObject& object)
{
    Script script;
    if (!assign(script, QJsonValue(object)))
        return std::nullopt;
    return script;
}

} // namespace Orvello::ScriptCoding
