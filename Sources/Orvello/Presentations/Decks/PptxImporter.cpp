#include "Orvello/Presentations/Decks/PptxImporter.h"

#include "Orvello/Presentations/Decks/DeckReader.h"
#include "Orvello/Presentations/Decks/ZipArchive.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace Orvello::PptxImporter {

using namespace Qt::StringLiterals;

QString description(ImportError error)
{
    switch (error) {
    case ImportError::Unreadable:
        return QCoreApplication::translate(
            "Orvello::PptxImporter", "The file could not be opened as a PowerPoint package.");
    case ImportError::NotAPresentation:
        return QCoreApplication::translate(
            "Orvello::PptxImporter", "No slides were found — is this a .pptx presentation?");
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
