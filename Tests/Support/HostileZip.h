#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace Orvello::Testing {

/// A raw deflate stream of this many mebibytes of zeros.
QByteArray deflatedZeros(int mebibytes);

/// An archive of this many entries with different names.
QByteArray archiveOfEmptyEntries(qint64 count);

/// An archive that says in its 64-bit end record that it has this many entries.
QByteArray archiveWithClaimedEntries(quint64 count);

/// An archive of empty entries whose names differ but have the same hash value where a string's
/// hash is h = 33 h + c.
QByteArray archiveWithCollidingNames(quint64 count);

} // namespace Orvello::Testing
