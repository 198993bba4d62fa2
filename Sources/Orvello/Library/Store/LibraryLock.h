#pragma once

#include <QString>

namespace Orvello {

/// Keeps two processes from writing the same library, whatever displays and session buses they run
/// on. The end of its process, however it comes, gives the lock up.
class LibraryLock final {
public:
    /// Tries once. The file at `path` is made for it, in a folder that exists.
    explicit LibraryLock(const QString& path);
    ~LibraryLock();
    LibraryLock(const LibraryLock&) = delete;
    LibraryLock& operator=(const LibraryLock&) = delete;

    /// Whether another process has it. Where there can be no lock, nobody has.
    bool isTaken() const { return m_isTaken; }

private:
    int m_descriptor;
    bool m_isTaken;
};

} // namespace Orvello
