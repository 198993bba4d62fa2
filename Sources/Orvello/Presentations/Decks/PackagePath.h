#pragma once

#include <QString>
#include <QStringView>

namespace Orvello::PptxImporter {

/// The path inside the package that a relationship's target means, for a part in the folder
/// `relativeTo`. A target that begins with "/" is taken as relative too.
[[nodiscard]] QString resolve(QStringView target, QStringView relativeTo);

/// The part of a path behind its last "/".
[[nodiscard]] QString fileName(QStringView path);

} // namespace Orvello::PptxImporter
