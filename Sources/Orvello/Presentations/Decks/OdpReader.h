#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"

namespace Orvello::PptxImporter {

class ZipArchive;

/// Reads an opened package in the OpenDocument format (.odp), which has all slides in one part.
namespace OdpReader {

/// Whether the package says that it is one, presentation or not.
[[nodiscard]] bool isOpenDocument(ZipArchive& archive);

[[nodiscard]] Result<Deck, ImportError> read(ZipArchive& archive);

} // namespace OdpReader

} // namespace Orvello::PptxImporter
