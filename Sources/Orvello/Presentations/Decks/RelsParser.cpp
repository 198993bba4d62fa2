#include "Orvello/Presentations/Decks/RelsParser.h"

namespace Orvello::PptxImporter {

namespace {

QString valueOrEmpty(const XmlAttributes& attributes, std::string_view name)
{
    const auto value = attributes.value(name);
    if (!value || value->size() > RelsParser::maximumValueLength)
        return {};
    return QString::fromUtf8(value->data(), static_cast<qsizetype>(value->size()));
}

} // namespace

void RelsParser::startElement(std::string_view name, const XmlAttributes& attributes)
{
    if (name != "Relationship" && !name.ends_with(":Relationship"))
        return;
    rels.append({ .id = valueOrEmpty(attributes, "Id"),
        .type = valueOrEmpty(attributes, "Type"),
        .target = valueOrEmpty(attributes, "Target") });
}

} // namespace Orvello::PptxImporter
