#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Orvello::Testing {

/// What a program asked the file system to do, in order, and what a disk may hold of it after a
/// power cut: the names of files come and go in the order of the requests, as a journal keeps them,
/// but any number of the last ones may be missing that no fsync(2) of a folder has followed; and a
/// file has its bytes only if an fsync(2) of it came after them. POSIX promises no more, and XFS
/// and F2FS keep no more.
class RecordedDisk {
public:
    /// The files of a folder by name; no bytes for those that are torn.
    using Files = std::map<std::string, std::optional<std::string>>;

    void open(int descriptor, const std::string& path, bool isNew);
    void write(int descriptor, const std::string& bytes);
    void flush(int descriptor);
    void rename(const std::string& from, const std::string& to);
    void link(const std::string& from, const std::string& to);
    void unlink(const std::string& path);

    std::size_t requests() const { return m_requests.size(); }

    /// Calls `check` with everything that the disk may hold when the power goes right after the
    /// first `count` requests.
    void forEachStateAfter(std::size_t count, const std::function<void(const Files&)>& check) const;

    /// Where the requests of this process go while it is not null.
    static RecordedDisk* current;

    bool failsPermissions = false; ///< fchmod(2) is refused.

private:
    enum class Kind { Name, Unname, Rename, Write, FlushFile, FlushFolder };
    struct Request {
        Kind kind;
        std::string name = {};
        std::string newName = {};
        int file = 0;
        std::string bytes = {};
    };

    std::vector<Request> m_requests;
    std::map<int, int> m_files; ///< By descriptor; 0 for a folder.
    std::map<std::string, int> m_names;
    int m_lastFile = 0;
};

} // namespace Orvello::Testing
