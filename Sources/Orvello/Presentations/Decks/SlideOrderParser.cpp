#include "Orvello/Presentations/Decks/SlideOrderParser.h"

namespace Orvello::PptxImporter {

void SlideOrderParser::startElement(std::string_view name, const XmlAttributes& attributes)
{
    if (!name.ends_with("sldId"))
        return;
    if (const auto id = attributes.value("r:id"))
        slideRelIds.append(QString::fromUtf8(id->data(), static_cast<qsizetype>(id->size())));
}

} // namespace Orvello::PptxImporter
