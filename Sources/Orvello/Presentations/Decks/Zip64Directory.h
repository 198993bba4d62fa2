#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace Orvello::PptxImporter {

/// How many entries an archive claims to have in a 64-bit record, which libzip takes at its word
/// before it reads a single one; 0 without such a record. The highest of several claims.
[[nodiscard]] quint64 zip64EntryCount(QIODevice& device);

} // namespace Orvello::PptxImporter
