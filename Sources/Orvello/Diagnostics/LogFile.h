#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>

namespace Orvello {

/// A log file that stays open, and its two earlier generations, `path` + ".1" and ".2". A file that
/// has grown past the limit moves up one generation. Any thread. Every failure of the file system
/// is swallowed: without a file the lines are dropped.
class LogFile {
public:
    /// A file of more bytes than this is rotated.
    static constexpr std::int64_t sizeLimit = 1'000'000;

    /// `descriptor` is where the open file is published, -1 while there is none. It is the
    /// caller's, so that a signal handler can read it without touching this object.
    explicit LogFile(std::atomic<int>& descriptor);
    ~LogFile();

    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    /// Rotates the file at `path` if it is too large, and opens it for appending.
    void open(std::string path);

    /// Appends the line with one write(2), and rotates right after it where it passed the limit.
    void append(std::string_view line);

private:
    void close();
    void reopen();
    void rotateIfNeeded() const;

    std::mutex m_lock; ///< Held for every write and every reopening.
    std::atomic<int>& m_descriptor;
    std::string m_path;
    std::int64_t m_bytesWritten = 0; ///< Size of the open file, counted along.
};

} // namespace Orvello
