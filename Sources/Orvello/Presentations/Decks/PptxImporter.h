#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Library/Records/Script.h"

#include <QList>
#include <QString>

#include <atomic>

/// Reads the speaker notes of a PowerPoint Open XML package (`.pptx`), or of an OpenDocument
/// presentation (`.odp`). Which of them a file is, its content says.
namespace Orvello::PptxImporter {

enum class ImportError {
    Unreadable, ///< Not a file that opens as a package.
    NotAPresentation, ///< A package without slides.
    Protected, ///< Encrypted with a password.
};

/// What tells a version of a file from another one without reading it.
struct FileStamp {
    qint64 modified = 0; ///< In milliseconds since 1970.
    qint64 size = -1; ///< Negative when there is no file.

    [[nodiscard]] static FileStamp of(const QString& path); ///< Asks the disk. Any thread.

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// What a package holds.
struct Deck {
    QList<SlideNote> slides;
    QList<qint64> unread; ///< The numbers of the slides whose notes were lost to a limit, in order.
    FileStamp stamp = {}; ///< Of the package's file, from before it was read.
};

/// What the user is told.
QString description(ImportError error);

/// The notes of every slide in presentation order, hidden slides and slides without notes included,
/// each with its slide's title. A part of the package that is missing, damaged, encrypted or past
/// one of the limits below leaves its slide with no title or with empty notes.
///
/// Synchronous, on the caller's thread; calls on different threads are independent.
[[nodiscard]] Result<QList<SlideNote>, ImportError> importNotes(const QString& path);

/// The same, with what the limits took away. It ends early, with whatever error, once another
/// thread sets `isCancelled`.
[[nodiscard]] Result<Deck, ImportError> importDeck(
    const QString& path, const std::atomic<bool>* isCancelled = nullptr);

/// Whether the file's name is that of a deck.
[[nodiscard]] bool isDeckFile(const QString& path);

/// Numbers of slides as people write them: "3, 257–300".
[[nodiscard]] QString slideRanges(const QList<qint64>& numbers);

/// Far above any deck that people make, these limits bound the cost of a package made to do harm:
/// at worst a minute or two, and 400 MB beyond the result itself. An ordinary one takes, beyond the
/// result, the memory for its directory, the list of its slides' paths and its largest part.
/// XmlParser and RelsParser add limits for what is inside a part.
namespace Limits {

/// Entries of a package, and the bytes of its directory. One with more is Unreadable.
inline constexpr qint64 entries = 65'535;
inline constexpr qint64 directorySize = 16LL * 1024 * 1024;

/// Uncompressed size of an entry, whatever the directory says it is. A larger one counts as
/// missing.
inline constexpr qint64 entrySize = 16LL * 1024 * 1024;

/// Bytes read from the package, and bytes that come out of its entries, in one import. From the
/// entry that goes past either, every entry counts as missing.
inline constexpr qint64 totalRead = 256LL * 1024 * 1024;
inline constexpr qint64 totalSize = 256LL * 1024 * 1024;

/// Slides of a deck. Those after them are left out.
inline constexpr qsizetype slides = 100'000;

/// UTF-16 code units of text in one part, and in all titles and notes together. A part that
/// goes past either contributes the placeholders before the one that does.
inline constexpr qsizetype partText = 1'048'576;
inline constexpr qsizetype totalText = 64 * partText;

} // namespace Limits

} // namespace Orvello::PptxImporter
