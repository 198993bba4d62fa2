#pragma once

#include "Orvello/Presentations/Decks/XmlParser.h"

#include <QStringList>

namespace Orvello::PptxImporter {

/// Collects the relationship ids of the slides from the presentation part, in document order, which
/// is the order of the slides. The id's attribute is known by its usual prefix, "r:id".
class SlideOrderParser final : public XmlParser {
public:
    QStringList slideRelIds;

private:
    void startElement(std::string_view name, const XmlAttributes& attributes) override;
};

} // namespace Orvello::PptxImporter
