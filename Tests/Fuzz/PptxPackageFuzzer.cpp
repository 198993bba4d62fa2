/// Any bytes as a package: opening it, finding its slides, extracting and reading their parts.

#include "Orvello/Presentations/Decks/DeckReader.h"
#include "Orvello/Presentations/Decks/OdpReader.h"
#include "Orvello/Presentations/Decks/ZipArchive.h"

#include <QBuffer>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace Orvello::PptxImporter;

    QBuffer device;
    device.setData(reinterpret_cast<const char*>(data), static_cast<int>(size));
    device.open(QIODevice::ReadOnly);
    const auto archive = ZipArchive::open(device);
    if (!archive)
        return 0;
    const auto deck = OdpReader::isOpenDocument(*archive) ? OdpReader::read(*archive)
                                                          : DeckReader(*archive).read();
    if (!deck)
        return 0;
    qint64 number = 0;
    for (const Orvello::SlideNote& slide : deck->slides) {
        if (slide.index != ++number || slide.notes != slide.notes.trimmed()
            || (slide.title && (slide.title->isEmpty() || *slide.title != slide.title->trimmed())))
            __builtin_trap();
    }
    return 0;
}
