#pragma once

#include <QString>

#include <span>
#include <string_view>
#include <system_error>

namespace Orvello::AtomicFile {

/// What a replacement must survive before the call returns.
enum class Durability {
    Written, ///< The end of the process.
    Flushed, ///< A power cut, too, which takes a disk's time.
};

/// Replaces the file at `path` by the concatenated `pieces`: they are written to a temporary file
/// in the same folder, which is then renamed over the old one. Whatever happens, and whenever the
/// process dies, `path` holds either the old or the new bytes, whole. A symbolic link is followed,
/// so that the file it names is replaced and the link stays. The new file has the old one's
/// permissions; without an old one, it is for the user's eyes alone.
///
/// Returns false, with the old file untouched, no temporary file left and the reason in `reason`,
/// when any step fails (no folder, no permission, no space, something other than a file in its
/// place). Only a process that is killed halfway leaves its temporary file behind. The folder must
/// exist. Any thread.
///
/// The new file is in its place when this returns; the old one's space may be freed a little later.
[[nodiscard]] bool replace(const QString& path, std::span<const std::string_view> pieces,
    Durability durability = Durability::Written, std::error_code* reason = nullptr);

/// The same for bytes in one piece.
[[nodiscard]] bool replace(const QString& path, std::string_view bytes,
    Durability durability = Durability::Written, std::error_code* reason = nullptr);

/// Brings the file at `path`, as it is now, and its name to the disk, and keeps what was flushed
/// under `flushedName(path)` until the next time: after a power cut that one is whole, even if
/// `path` was replaced meanwhile and holds nothing. Takes a disk's time. Any thread.
bool flush(const QString& path);

/// Beside the file that `path` finally names.
[[nodiscard]] QString flushedName(const QString& path);

/// Removes the temporary files that killed processes left behind. While nobody replaces the file.
void removeLeftovers(const QString& path);

} // namespace Orvello::AtomicFile
