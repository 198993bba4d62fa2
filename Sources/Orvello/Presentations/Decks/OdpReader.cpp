#include "Orvello/Presentations/Decks/OdpReader.h"

#include "Orvello/Presentations/Decks/OdpNotesParser.h"
#include "Orvello/Presentations/Decks/ZipArchive.h"

#include <numeric>
#include <optional>

namespace Orvello::PptxImporter::OdpReader {

using namespace Qt::StringLiterals;

namespace {

/// The package's list of its parts has this element for each one that is encrypted.
bool isEncrypted(ZipArchive& archive)
{
    const auto manifest = archive.data(u"META-INF/manifest.xml"_s);
    return manifest && manifest->contains("encryption-data");
}

} // namespace

bool isOpenDocument(ZipArchive& archive)
{
    const auto type = archive.data(u"mimetype"_s);
    return type && type->startsWith("application/vnd.oasis.opendocument.");
}

Result<Deck, ImportError> read(ZipArchive& archive)
{
    if (isEncrypted(archive))
        return Failure { ImportError::Protected };
    const std::optional<QByteArrayView> content = archive.data(u"content.xml"_s);
    if (!content)
        return Failure { ImportError::NotAPresentation };
    OdpNotesParser parser({ Limits::slides, Limits::partText, Limits::totalText });
    parser.parse({ content->data(), static_cast<std::size_t>(content->size()) });
    Deck deck { parser.takeSlides(), parser.cutSlides(), {} };
    if (deck.slides.isEmpty())
        return Failure { ImportError::NotAPresentation };
    return deck;
}

} // namespace Orvello::PptxImporter::OdpReader
