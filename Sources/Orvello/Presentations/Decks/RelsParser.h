#pragma once

#include "Orvello/Presentations/Decks/XmlParser.h"

#include <QList>
#include <QString>

namespace Orvello::PptxImporter {

/// One relationship of a part to another; a field is empty when its attribute is missing.
struct Rel {
    QString id;
    QString type;
    QString target;

    friend bool operator==(const Rel&, const Rel&) = default;
};

/// Collects the relationships of one `.rels` part, in document order.
class RelsParser final : public XmlParser {
public:
    /// In bytes of UTF-8. A longer value counts as missing: no part has such a name, and a hundred
    /// thousand slides may refer to the same one.
    static constexpr std::size_t maximumValueLength = 4'096;

    QList<Rel> rels;

private:
    void startElement(std::string_view name, const XmlAttributes& attributes) override;
};

} // namespace Orvello::PptxImporter
