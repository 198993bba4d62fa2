#include "Tests/Support/HostileZip.h"

#include <QtEndian>

#include <zlib.h>

#include <algorithm>

namespace Orvello::Testing {

namespace {

template <typename Integer>
void append(QByteArray& bytes, Integer value)
{
    char encoded[sizeof(Integer)];
    qToLittleEndian(value, encoded);
    bytes.append(encoded, sizeof encoded);
}

QByteArray directoryEntry(const QByteArray& name)
{
    QByteArray entry = "PK\1\2" + QByteArray(24, '\0');
    append(entry, static_cast<quint16>(name.size()));
    return entry + QByteArray(16, '\0') + name;
}

/// The archive of this directory alone, ended by the three records of one with more than 65,535
/// entries.
QByteArray withEnd(const QByteArray& directory, quint64 count)
{
    const auto size = static_cast<quint64>(directory.size());
    constexpr quint64 offset = 0;
    QByteArray end("PK\6\6");
    append<quint64>(end, 44);
    append<quint32>(end, 0x002d'002d);
    append<quint64>(end, 0);
    append(end, count);
    append(end, count);
    append(end, size);
    append(end, offset);

    end += "PK\6\7";
    append<quint32>(end, 0);
    append(end, offset + size);
    append<quint32>(end, 1);

    const auto shortCount = static_cast<quint16>(std::min<quint64>(count, 0xffff));
    end += "PK\5\6";
    append<quint32>(end, 0);
    append(end, shortCount);
    append(end, shortCount);
    append(end, static_cast<quint32>(size));
    append(end, static_cast<quint32>(offset));
    append<quint16>(end, 0);
    return directory + end;
}

} // namespace

QByteArray deflatedZeros(int mebibytes)
{
    QByteArray zeros(1024 * 1024, '\0');
    QByteArray piece(64 * 1024, Qt::Uninitialized);
    z_stream stream {};
    deflateInit2(
        &stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, MAX_MEM_LEVEL, Z_DEFAULT_STRATEGY);
    stream.next_in = reinterpret_cast<Bytef*>(zeros.data());
    stream.avail_in = static_cast<uInt>(zeros.size());
    stream.next_out = reinterpret_cast<Bytef*>(piece.data());
    stream.avail_out = static_cast<uInt>(piece.size());
    // After a full flush the stream neither looks back nor starts within a byte.
    deflate(&stream, Z_FULL_FLUSH);
    piece.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);

    const QByteArray end("\3\0", 2);
    return piece.repeated(mebibytes) + end;
}

QByteArray archiveOfEmptyEntries(qint64 count)
{
    QByteArray directory;
    for (qint64 number = 0; number < count; ++number)
        directory += directoryEntry("media/image" + QByteArray::number(number) + ".png");
    return withEnd(directory, static_cast<quint64>(count));
}

QByteArray archiveWithClaimedEntries(quint64 count)
{
    return withEnd(directoryEntry("name"), count);
}

QByteArray archiveWithCollidingNames(quint64 count)
{
    const QByteArray pieces[] { "A~", "B]", "C<" };
    QByteArray directory;
    for (quint64 number = 0; number < count; ++number) {
        QByteArray name;
        for (quint64 rest = number, i = 0; i < 14; ++i, rest /= 3)
            name += pieces[rest % 3];
        directory += directoryEntry(name);
    }
    return withEnd(directory, count);
}

} // namespace Orvello::Testing
