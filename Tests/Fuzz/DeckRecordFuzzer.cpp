// Whatever a presentation application prints, as bytes.

#include "Orvello/Library/Import/DeckRecord.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace Orvello;
using namespace Qt::StringLiterals;

namespace {

void require(bool isTrue)
{
    if (!isTrue)
        std::abort();
}

void checkRecord(const QString& output)
{
    const auto record = DeckRecord::parse(output, u"Fallback"_s);
    if (!record)
        return;
    require(!record->name.isEmpty());
    require(record->slides.size() == output.count(u'\x1e'));
    require(std::any_of(record->slides.begin(), record->slides.end(),
        [](const SlideNote& slide) { return !slide.notes.isEmpty(); }));
    for (qsizetype i = 0; i < record->slides.size(); ++i) {
        const SlideNote& slide = record->slides[i];
        require(slide.index == i + 1);
        require(!slide.title || !slide.title->trimmed().isEmpty());
        require(slide.notes == slide.notes.trimmed());
    }
}

void checkLocation(const QString& output)
{
    const DeckLocation location = DeckLocation::parse(output);
    require(!location.name.isEmpty());
    require(location.path == location.path.trimmed());
    const auto deck = location.localDeck();
    require(!deck || deck->startsWith(u'/'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString output = bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString();
    checkRecord(output);
    checkLocation(output);
    return 0;
}
