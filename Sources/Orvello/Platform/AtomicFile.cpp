#include "Orvello/Platform/AtomicFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace Orvello::AtomicFile {

namespace {

/// How many pieces go into one writev(2). POSIX guarantees 16; every system of ours allows 1024.
constexpr std::size_t piecesPerCall = 1024;

/// Writes the vectors whole, going on after short writes and interruptions.
bool writeAll(int descriptor, std::span<iovec> vectors)
{
    while (!vectors.empty()) {
        const ssize_t written
            = ::writev(descriptor, vectors.data(), static_cast<int>(vectors.size()));
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        auto left = static_cast<std::size_t>(written);
        while (!vectors.empty() && left >= vectors.front().iov_len) {
            left -= vectors.front().iov_len;
            vectors = vectors.subspan(1);
        }
        if (!vectors.empty()) {
            vectors.front().iov_base = static_cast<char*>(vectors.front().iov_base) + left;
            vectors.front().iov_len -= left;
        }
    }
    return true;
}

bool writePieces(int descriptor, std::span<const std::string_view> pieces)
{
    std::array<iovec, piecesPerCall> vectors;
    while (!pieces.empty()) {
        const std::size_t count = std::min(pieces.size(), vectors.size());
        for (std::size_t i = 0; i < count; ++i)
            vectors[i] = { const_cast<char*>(pieces[i].data()), pieces[i].size() };
        if (!writeAll(descriptor, std::span(vectors).first(count)))
            return false;
        pieces = pieces.subspan(count);
    }
    return true;
}

/// The permissions of the file that is replaced, or what the user's mask gives a new one.
mode_t permissionsFor(const std::string& target)
{
    struct stat status { };
    if (::stat(target.c_str(), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

} // namespace

bool replace(const QString& path, std::span<const std::string_view> pieces)
{
    const QString resolved = QFileInfo(path).canonicalFilePath();
    const std::string target
        = QFile::encodeName(resolved.isEmpty() ? path : resolved).toStdString();
    std::string temporary = target + ".XXXXXX";
    const int descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0)
        return false;

    // No fsync(2): it would stall every key press on a slow disk, and the file systems in use order
    // the data of a replacing rename before the rename itself (auto_da_alloc on ext4, and by design
    // on Btrfs, XFS and APFS).
    const bool isWritten
        = writePieces(descriptor, pieces) && ::fchmod(descriptor, permissionsFor(target)) == 0;
    const bool isClosed = ::close(descriptor) == 0;
    if (isWritten && isClosed && ::rename(temporary.c_str(), target.c_str()) == 0)
        return true;
    ::unlink(temporary.c_str());
    return false;
}

bool replace(const QString& path, std::string_view bytes)
{
    return replace(path, std::span(&bytes, 1));
}

} // namespace Orvello::AtomicFile
