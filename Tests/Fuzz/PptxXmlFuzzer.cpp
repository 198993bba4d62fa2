/// Any bytes as each kind of part that the importer reads.

#include "Orvello/Presentations/Decks/OdpNotesParser.h"
#include "Orvello/Presentations/Decks/PackagePath.h"
#include "Orvello/Presentations/Decks/PlaceholderTextParser.h"
#include "Orvello/Presentations/Decks/RelsParser.h"
#include "Orvello/Presentations/Decks/SlideOrderParser.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace Orvello::PptxImporter;

    const std::string_view document(reinterpret_cast<const char*>(data), size);
    constexpr qsizetype maximumLength = 100;
    PlaceholderTextParser text({ "title", "body" }, maximumLength);
    text.parse(document);
    if (text.collected.join(u'\n').size() > maximumLength)
        __builtin_trap();

    SlideOrderParser order;
    order.parse(document);

    OdpNotesParser pages({ 3, maximumLength, 2 * maximumLength });
    pages.parse(document);
    qsizetype length = 0;
    const auto slides = pages.takeSlides();
    for (const Orvello::SlideNote& slide : slides)
        length += slide.notes.size() + slide.title.value_or(QString()).size();
    if (slides.size() > 3 || length > 2 * maximumLength)
        __builtin_trap();

    RelsParser rels;
    rels.parse(document);
    for (const Rel& rel : rels.rels) {
        const QString path = resolve(rel.target, u"ppt/slides");
        if (path.startsWith(u'/') || path.endsWith(u'/') || path.contains(QStringLiteral("//")))
            __builtin_trap();
    }
    return 0;
}
