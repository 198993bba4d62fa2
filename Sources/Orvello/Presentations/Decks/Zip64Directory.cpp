#include "Orvello/Presentations/Decks/Zip64Directory.h"

#include <QByteArray>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace Orvello::PptxImporter {

namespace {

// Sizes and offsets of the records at the end of an archive: the ZIP file format, version 6.3,
// 4.3.14 to 4.3.16.
constexpr qint64 endRecordSize = 22;
constexpr qint64 maximumCommentSize = 65'535;
constexpr qint64 locatorSize = 20;
constexpr qint64 zip64RecordSize = 56;
constexpr qint64 recordOffsetInLocator = 8;
constexpr qint64 entryCountInRecord = 32;

QByteArray read(QIODevice& device, qint64 offset, qint64 size)
{
    return device.seek(offset) ? device.read(size) : QByteArray();
}

quint64 entryCountAt(QIODevice& device, quint64 offset)
{
    if (offset > static_cast<quint64>(device.size()))
        return 0;
    const QByteArray record = read(device, static_cast<qint64>(offset), zip64RecordSize);
    if (record.size() < zip64RecordSize || !record.startsWith("PK\6\6"))
        return 0;
    return qFromLittleEndian<quint64>(record.constData() + entryCountInRecord);
}

} // namespace

quint64 zip64EntryCount(QIODevice& device)
{
    const qint64 tailSize
        = std::min(device.size(), locatorSize + endRecordSize + maximumCommentSize);
    const QByteArray tail = read(device, device.size() - tailSize, tailSize);

    // The locator stands right before the end record.
    quint64 count = 0;
    qsizetype at = -1;
    while ((at = tail.indexOf("PK\5\6", at + 1)) >= 0) {
        if (at < locatorSize || tail.mid(at - locatorSize, 4) != "PK\6\7")
            continue;
        const char* const locator = tail.constData() + at - locatorSize;
        const auto offset = qFromLittleEndian<quint64>(locator + recordOffsetInLocator);
        count = std::max(count, entryCountAt(device, offset));
    }
    return count;
}

} // namespace Orvello::PptxImporter
