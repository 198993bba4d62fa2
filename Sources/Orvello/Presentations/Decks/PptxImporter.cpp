#include "Orvello/Presentations/Decks/PptxImporter.h"

#include "Orvello/Presentations/Decks/DeckReader.h"
#include "Orvello/Presentations/Decks/OdpReader.h"
#include "Orvello/Presentations/Decks/ZipArchive.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace Orvello::PptxImporter {

using namespace Qt::StringLiterals;

namespace {

/// An encrypted package is a compound file with a stream of this name: Office Document Cryptography
/// Structure, 2.3.4.4.
bool isProtected(QFile& file)
{
    constexpr qint64 beginning = 65'536; // The directory of so small a file lies near its start…
    static const QByteArray signature = QByteArray::fromHex("d0cf11e0a1b11ae1");
    static const QString stream = u"EncryptedPackage"_s;
    const QByteArray name(
        reinterpret_cast<const char*>(stream.utf16()), stream.size() * qsizetype(sizeof(char16_t)));
    const auto read = [&file](qint64 from) {
        return file.seek(std::max<qint64>(from, 0)) ? file.read(beginning) : QByteArray();
    };
    const QByteArray start = read(0);
    // … or, with some programs, at its end.
    return start.startsWith(signature)
        && (start.contains(name) || read(file.size() - beginning).contains(name));
}

} // namespace

FileStamp FileStamp::of(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() ? FileStamp { file.lastModified().toMSecsSinceEpoch(), file.size() }
                         : FileStamp();
}

QString description(ImportError error)
{
    switch (error) {
    case ImportError::Unreadable:
        return QCoreApplication::translate(
            "Orvello::PptxImporter", "The file could not be opened as a PowerPoint package.");
    case ImportError::NotAPresentation:
        return QCoreApplication::translate(
            "Orvello::PptxImporter", "No slides were found — is this a .pptx presentation?");
    case ImportError::Protected:
        return QCoreApplication::translate("Orvello::PptxImporter",
            "The presentation is protected by a password. Save a copy without one in your "
            "presentation program, and import that.");
    }
    return {};
}

Result<QList<SlideNote>, ImportError> importNotes(const QString& path)
{
    const auto deck = importDeck(path);
    if (!deck)
        return Failure { deck.error() };
    return deck->slides;
}

Result<Deck, ImportError> importDeck(const QString& path, const std::atomic<bool>* isCancelled)
{
    const FileStamp stamp = FileStamp::of(path);
    // Opening a pipe waits for its writer, who may never come.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return Failure { ImportError::Unreadable };
    const std::unique_ptr<ZipArchive> archive = ZipArchive::open(file, isCancelled);
    if (!archive)
        return Failure { isProtected(file) ? ImportError::Protected : ImportError::Unreadable };
    const auto read = OdpReader::isOpenDocument(*archive) ? OdpReader::read(*archive)
                                                          : DeckReader(*archive).read();
    if (!read)
        return read;
    Deck deck = *read;
    deck.stamp = stamp;
    return deck;
}

bool isDeckFile(const QString& path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    return extension == u"pptx"_s || extension == u"odp"_s;
}

QString slideRanges(const QList<qint64>& numbers)
{
    QStringList ranges;
    for (qsizetype first = 0; first < numbers.size();) {
        qsizetype last = first;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1)
            ++last;
        ranges.append(first == last
                ? QString::number(numbers[first])
                : QString::number(numbers[first]) + u'–' + QString::number(numbers[last]));
        first = last + 1;
    }
    return ranges.join(u", "_s);
}

} // namespace Orvello::PptxImporter
