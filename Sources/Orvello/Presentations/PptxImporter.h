#pragma once

#include "Orvello/Library/Script.h"
#include "Orvello/Platform/Result.h"

namespace Orvello::PptxImporter {

enum class ImportError { Unreadable, NotAPresentation };
[[nodiscard]] QString description(ImportError error);
Result<QList<SlideNote>, ImportError> importNotes(const QString& path);

} // namespace Orvello::PptxImporter
