#include "Orvello/Presentations/PptxImporter.h"
namespace Orvello::PptxImporter {
QString description(ImportError) { return {}; }
Result<QList<SlideNote>, ImportError> importNotes(const QString&) { return Failure { ImportError::Unreadable }; }
} // namespace Orvello::PptxImporter
