#pragma once

#include <QString>

#include <span>
#include <string_view>

namespace Orvello::AtomicFile {

/// Replaces the file at `path` by the concatenated `pieces`: they are written to a temporary file
/// in the same folder, which is then renamed over the old one. Whatever happens, and whenever the
/// process dies, `path` holds either the old or the new bytes, whole. A symbolic link is followed,
/// so that the file it names is replaced and the link stays. The new file has the old one's
/// permissions.
///
/// Returns false, with the old file untouched and no temporary file left, when any step fails (no
/// folder, no permission, no space, something other than a file in its place). Only a process that
/// is killed halfway leaves its temporary file behind. The folder must exist. Any thread.
///
/// The new file is in its place when this returns; the old one's space may be freed a little later.
[[nodiscard]] bool replace(const QString& path, std::span<const std::string_view> pieces);

/// The same for bytes in one piece.
[[nodiscard]] bool replace(const QString& path, std::string_view bytes);

} // namespace Orvello::AtomicFile
