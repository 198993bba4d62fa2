#include "Orvello/Foundation/AtomicFile.h"

#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/uio.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

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

/// The file that `path` finally names, which need not exist; nothing if its symbolic links form a
/// loop.
std::optional<std::string> followLinks(std::filesystem::path path)
{
    constexpr int maximumLinks = 40; // As many as the kernel follows.
    for (int i = 0; i < maximumLinks; ++i) {
        std::error_code notALink;
        const std::filesystem::path next = std::filesystem::read_symlink(path, notALink);
        if (notALink)
            return path.string();
        path = path.parent_path() / next;
    }
    return std::nullopt;
}

/// Closes the file on a thread of its own. Whoever is last to close a file without a name waits
/// until its bytes are freed and, if they are still on their way to the disk, for the disk. Without
/// this thread, that wait would be most of the cost of a key press that saves ten megabytes for the
/// second time within seconds.
void closeInBackground(int descriptor)
{
    constexpr int maximumPending = 4; // A disk that cannot keep up slows the writer down.
    static std::atomic<int> closing = 0;
    if (closing.fetch_add(1) < maximumPending) {
        try {
            std::thread([descriptor] {
                ::close(descriptor);
                --closing;
            }).detach();
            return;
        } catch (const std::system_error&) {
            // No thread is available.
        }
    }
    ::close(descriptor);
    --closing;
}

/// Keeps open a file that is about to lose its name, so that it is not freed there and then.
class OldFile {
public:
    explicit OldFile(const std::string& path)
        : m_descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~OldFile()
    {
        if (m_descriptor >= 0)
            closeInBackground(m_descriptor);
    }
    OldFile(const OldFile&) = delete;
    OldFile& operator=(const OldFile&) = delete;

private:
    int m_descriptor; ///< Negative if there is none, or none that may be read.
};

/// A new file beside the one that it is going to replace. Removed again unless it takes that one's
/// place.
class TemporaryFile {
public:
    /// The kernel applies the user's mask to `mode`.
    TemporaryFile(const std::string& target, mode_t mode)
    {
        do {
            const quint64 number = QRandomGenerator::global()->generate64();
            m_path = target + '.' + QByteArray::number(number, 36).toStdString();
            m_descriptor = ::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        } while (m_descriptor < 0 && errno == EEXIST);
        m_exists = m_descriptor >= 0;
    }
    ~TemporaryFile()
    {
        close();
        if (m_exists)
            ::unlink(m_path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    bool write(std::span<const std::string_view> pieces)
    {
        return writePieces(m_descriptor, pieces);
    }
    bool setPermissions(mode_t mode) { return ::fchmod(m_descriptor, mode) == 0; }
    bool close() // Some file systems report a full disk only here.
    {
        const int descriptor = std::exchange(m_descriptor, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }
    bool moveTo(const std::string& target)
    {
        const bool isMoved = ::rename(m_path.c_str(), target.c_str()) == 0;
        m_exists = m_exists && !isMoved;
        return isMoved;
    }

private:
    std::string m_path;
    int m_descriptor = -1;
    bool m_exists = false;
};

} // namespace

bool replace(const QString& path, std::span<const std::string_view> pieces)
{
    const auto target = followLinks(QFile::encodeName(path).toStdString());
    if (!target)
        return false;
    struct stat status { };
    const bool isReplacing = ::stat(target->c_str(), &status) == 0;
    if (isReplacing && !S_ISREG(status.st_mode))
        return false;

    // Nobody may read the new bytes who could not read the old ones, not even meanwhile.
    TemporaryFile file(*target, isReplacing ? 0600 : 0666);
    if (!file.isOpen() || !file.write(pieces))
        return false;
    if (isReplacing && !file.setPermissions(status.st_mode & 07777))
        return false;
    // No fsync(2): it would stall every key press on a slow disk. A rename over an existing file
    // already makes ext4 (auto_da_alloc) and Btrfs write its data out first, so that a power cut,
    // too, leaves one of the two files whole there.
    if (!file.close())
        return false;
    const OldFile old(*target);
    return file.moveTo(*target);
}

bool replace(const QString& path, std::string_view bytes)
{
    return replace(path, std::span(&bytes, 1));
}

} // namespace Orvello::AtomicFile
