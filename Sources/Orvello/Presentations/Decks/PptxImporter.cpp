#include "Orvello/Presentations/Decks/PptxImporter.h"

#include "Orvello/Presentations/Decks/DeckReader.h"
#include "Orvello/Presentations/Decks/ZipArchive.h"

#include <QFile>
#include <QFileInfo>

namespace Orvello::PptxImporter {

using namespace Qt::StringLiterals;

QString description(ImportError error)
{
    switch (error) {
    case ImportError::Unreadable:
        return u"The file could not be opened as a PowerPoint package."_s;
    case ImportError::NotAPresentation:
        return u"No slides were found — is this a .pptx presentation?"_s;
    }
    return {};
}

Result<QList<SlideNote>, ImportError> importNotes(const QString& path)
{
    // Opening a pipe waits for its writer, who may never come.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return Failure { ImportError::Unreadable };
    const std::unique_ptr<ZipArchive> archive = ZipArchive::open(file);
    if (!archive)
        return Failure { ImportError::Unreadable };
    return DeckReader(*archive).read();
}

} // namespace Orvello::PptxImporter
