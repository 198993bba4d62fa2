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

/// Between the target's name and a number in a temporary file's name.
constexpr std::string_view temporaryInfix = ".tmp-";

std::string temporaryName(const std::string& target)
{
    const quint64 number = QRandomGenerator::global()->generate64();
    return target + std::string(temporaryInfix) + QByteArray::number(number, 36).toStdString();
}

bool flushDescriptor(int descriptor)
{
#ifdef F_FULLFSYNC // Where fsync(2) leaves the bytes in the disk's own memory.
    if (::fcntl(descriptor, F_FULLFSYNC) == 0)
        return true;
#endif
    return ::fsync(descriptor) == 0;
}

bool flushPath(const std::string& path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return false;
    const bool isFlushed = flushDescriptor(descriptor);
    ::close(descriptor);
    return isFlushed;
}

std::string folderOf(const std::string& path)
{
    return std::filesystem::path(path).parent_path().string();
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
            m_path = temporaryName(target);
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
    void setPermissions(mode_t mode)
    {
        // Some file systems have none. The bytes are worth more.
        static_cast<void>(::fchmod(m_descriptor, mode));
    }
    bool flush() { return flushDescriptor(m_descriptor); }
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

bool replace(const QString& path, std::span<const std::string_view> pieces, Durability durability,
    std::error_code* reason)
{
    const auto failed = [reason](int error) {
        if (reason)
            *reason = { error, std::generic_category() };
        return false;
    };
    const auto target = followLinks(QFile::encodeName(path).toStdString());
    if (!target)
        return failed(ELOOP);
    struct stat status { };
    const bool isReplacing = ::stat(target->c_str(), &status) == 0;
    if (isReplacing && !S_ISREG(status.st_mode))
        return failed(EEXIST);

    // Nobody may read the new bytes who could not read the old ones, not even meanwhile.
    TemporaryFile file(*target, 0600);
    if (!file.isOpen() || !file.write(pieces))
        return failed(errno);
    if (isReplacing)
        file.setPermissions(status.st_mode & 07777);
    const bool isFlushing = durability == Durability::Flushed;
    if ((isFlushing && !file.flush()) || !file.close())
        return failed(errno);
    const OldFile old(*target);
    if (!file.moveTo(*target))
        return failed(errno);
    if (isFlushing)
        flushPath(folderOf(*target));
    return true;
}

bool replace(
    const QString& path, std::string_view bytes, Durability durability, std::error_code* reason)
{
    return replace(path, std::span(&bytes, 1), durability, reason);
}

bool flush(const QString& path)
{
    const auto target = followLinks(QFile::encodeName(path).toStdString());
    if (!target)
        return false;
    // A second name holds on to the file while another one takes its place.
    const std::string held = temporaryName(*target);
    if (::link(target->c_str(), held.c_str()) != 0) // Some file systems have no second names.
        return flushPath(*target) && flushPath(folderOf(*target));
    const std::string kept = QFile::encodeName(flushedName(path)).toStdString();
    const bool isKept = flushPath(held) && ::rename(held.c_str(), kept.c_str()) == 0;
    // Renaming one name of a file to another one of the same does nothing.
    ::unlink(held.c_str());
    return isKept && flushPath(folderOf(*target));
}

QString flushedName(const QString& path)
{
    const std::string name = QFile::encodeName(path).toStdString();
    return QFile::decodeName((followLinks(name).value_or(name) + ".flushed").c_str());
}

void removeLeftovers(const QString& path)
{
    const auto target = followLinks(QFile::encodeName(path).toStdString());
    if (!target)
        return;
    const std::filesystem::path name(*target);
    const std::string start = name.filename().string() + std::string(temporaryInfix);
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(name.parent_path(), ignored)) {
        if (entry.path().filename().string().starts_with(start))
            std::filesystem::remove(entry.path(), ignored);
    }
}

} // namespace Orvello::AtomicFile
