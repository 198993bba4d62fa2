#include "Orvello/Library/Records/ScriptCoding.h"

#include "Orvello/Foundation/JsonReader.h"
#include "Orvello/Foundation/JsonWriter.h"
#include "Orvello/Library/Records/UuidText.h"

#include <initializer_list>

namespace Orvello::ScriptCoding {
namespace {

enum class Field {
    None, ///< An array's element or the document itself, which no key names.
    Ignored, ///< An unknown or repeated key.
    Id,
    Title,
    Body,
    CreatedAt,
    UpdatedAt,
    Slides,
    DeckSource,
    NoteIndex,
    NoteTitle,
    NoteText
};

class FieldSet {
public:
    constexpr FieldSet(std::initializer_list<Field> fields = {})
    {
        for (const Field field : fields)
            add(field);
    }
    constexpr void add(Field field) { m_bits |= 1u << static_cast<unsigned>(field); }
    constexpr bool contains(const FieldSet& other) const
    {
        return (m_bits & other.m_bits) == other.m_bits;
    }

private:
    unsigned m_bits = 0;
};

constexpr FieldSet requiredOfScript
    = { Field::Id, Field::Title, Field::Body, Field::CreatedAt, Field::UpdatedAt };
constexpr FieldSet requiredOfNote = { Field::NoteIndex, Field::NoteText };
constexpr FieldSet optionalFields = { Field::Slides, Field::DeckSource, Field::NoteTitle };

Field scriptField(std::string_view key)
{
    if (key == "id")
        return Field::Id;
    if (key == "title")
        return Field::Title;
    if (key == "body")
        return Field::Body;
    if (key == "createdAt")
        return Field::CreatedAt;
    if (key == "updatedAt")
        return Field::UpdatedAt;
    if (key == "slides")
        return Field::Slides;
    if (key == "deckSource")
        return Field::DeckSource;
    return Field::Ignored;
}

Field noteField(std::string_view key)
{
    if (key == "index")
        return Field::NoteIndex;
    if (key == "title")
        return Field::NoteTitle;
    if (key == "notes")
        return Field::NoteText;
    return Field::Ignored;
}

/// Says whether there was a value to assign.
template <typename Value>
bool assign(Value& target, const std::optional<Value>& value)
{
    if (value)
        target = *value;
    return value.has_value();
}

/// Builds the scripts while the file is being read, so that no generic tree of it ever exists.
class LibraryDecoder final : public JsonHandler {
public:
    QList<Script> takeScripts() { return std::move(m_scripts); }

    bool null() override { return isIgnoring() || optionalFields.contains({ m_field }); }
    bool boolean(bool) override { return isIgnoring(); }
    bool number(std::string_view digits) override;
    bool string(std::string_view text) override;
    bool key(std::string_view name) override;
    bool beginObject() override;
    bool endObject() override;
    bool beginArray() override;
    bool endArray() override;

private:
    enum class Place { Document, Scripts, Script, Slides, Slide };

    bool isIgnoring() const { return m_field == Field::Ignored; }
    void enter(Place place)
    {
        m_place = place;
        m_field = Field::None;
    }

    QList<Script> m_scripts;
    Script m_script;
    SlideNote m_note;
    FieldSet m_scriptFields; ///< The fields that the script being read has had so far.
    FieldSet m_noteFields;
    Place m_place = Place::Document;
    Field m_field = Field::None;
    int m_ignoredDepth = 0; ///< Of arrays and objects inside an ignored value.
};

bool LibraryDecoder::number(std::string_view digits)
{
    switch (m_field) {
    case Field::Ignored:
        return true;
    case Field::NoteIndex:
        return assign(m_note.index, Json::integer(digits));
    case Field::CreatedAt:
        return assign(m_script.createdAt.secondsSinceReferenceDate, Json::finite(digits));
    case Field::UpdatedAt:
        return assign(m_script.updatedAt.secondsSinceReferenceDate, Json::finite(digits));
    default:
        return false;
    }
}

bool LibraryDecoder::string(std::string_view text)
{
    switch (m_field) {
    case Field::Ignored:
        return true;
    case Field::Id:
        return assign(m_script.id, UuidText::parse(Json::text(text)));
    case Field::Title:
        m_script.title = Json::text(text);
        return true;
    case Field::Body:
        m_script.body = Json::text(text);
        return true;
    case Field::DeckSource:
        m_script.deckSource = Json::text(text);
        return true;
    case Field::NoteTitle:
        m_note.title = Json::text(text);
        return true;
    case Field::NoteText:
        m_note.notes = Json::text(text);
        return true;
    default:
        return false;
    }
}

bool LibraryDecoder::key(std::string_view name)
{
    if (m_ignoredDepth > 0)
        return true;
    const bool isOfScript = m_place == Place::Script;
    FieldSet& seen = isOfScript ? m_scriptFields : m_noteFields;
    m_field = isOfScript ? scriptField(name) : noteField(name);
    if (seen.contains({ m_field }))
        m_field = Field::Ignored;
    seen.add(m_field);
    return true;
}

bool LibraryDecoder::beginObject()
{
    if (isIgnoring()) {
        ++m_ignoredDepth;
        return true;
    }
    if (m_place == Place::Scripts) {
        m_script = {};
        m_scriptFields = {};
        enter(Place::Script);
        return true;
    }
    if (m_place == Place::Slides) {
        m_note = {};
        m_noteFields = {};
        enter(Place::Slide);
        return true;
    }
    return false;
}

bool LibraryDecoder::endObject()
{
    if (m_ignoredDepth > 0) {
        --m_ignoredDepth;
        return true;
    }
    if (m_place == Place::Slide) {
        m_script.slides->append(std::move(m_note));
        enter(Place::Slides);
        return m_noteFields.contains(requiredOfNote);
    }
    m_scripts.append(std::move(m_script));
    enter(Place::Scripts);
    return m_scriptFields.contains(requiredOfScript);
}

bool LibraryDecoder::beginArray()
{
    if (isIgnoring()) {
        ++m_ignoredDepth;
        return true;
    }
    if (m_place == Place::Document) {
        enter(Place::Scripts);
        return true;
    }
    if (m_field == Field::Slides) {
        m_script.slides.emplace();
        enter(Place::Slides);
        return true;
    }
    return false;
}

bool LibraryDecoder::endArray()
{
    if (m_ignoredDepth > 0)
        --m_ignoredDepth;
    else if (m_place == Place::Slides)
        enter(Place::Script);
    return true;
}

void append(QByteArray& json, const SlideNote& note)
{
    json += R"({"index":)" + QByteArray::number(note.index);
    if (note.title) {
        json += R"(,"title":)";
        Json::appendString(json, *note.title);
    }
    json += R"(,"notes":)";
    Json::appendString(json, note.notes);
    json += '}';
}

void append(QByteArray& json, const QList<SlideNote>& slides)
{
    json += '[';
    for (const SlideNote& note : slides) {
        append(json, note);
        json += ',';
    }
    if (slides.isEmpty())
        json += ']';
    else
        json.back() = ']';
}

} // namespace

QByteArray encode(const Script& script)
{
    QByteArray json = R"({"id":")" + UuidText::format(script.id).toLatin1() + R"(","title":)";
    Json::appendString(json, script.title);
    json += R"(,"body":)";
    Json::appendString(json, script.body);
    json += R"(,"createdAt":)";
    Json::appendNumber(json, script.createdAt.secondsSinceReferenceDate);
    json += R"(,"updatedAt":)";
    Json::appendNumber(json, script.updatedAt.secondsSinceReferenceDate);
    if (script.slides) {
        json += R"(,"slides":)";
        append(json, *script.slides);
    }
    if (script.deckSource) {
        json += R"(,"deckSource":)";
        Json::appendString(json, *script.deckSource);
    }
    json += '}';
    json.squeeze();
    return json;
}

std::optional<QList<Script>> decode(QByteArray json)
{
    LibraryDecoder decoder;
    if (!Json::read(std::move(json), decoder))
        return std::nullopt;
    return decoder.takeScripts();
}

} // namespace Orvello::ScriptCoding
