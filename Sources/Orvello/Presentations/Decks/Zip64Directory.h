#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace Orvello::PptxImporter {

/// How many entries an archive claims to have where it says so with 64 bits, which libzip takes at
/// its word before it reads a single one; 0 when it does not. Of several claims the highest.
[[nodiscard]] quint64 zip64EntryCount(QIODevice& device);

} // namespace Orvello::PptxImporter
