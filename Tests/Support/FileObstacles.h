#pragma once

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace Orvello::Testing {

/// While it lives, no file can grow past `bytes`, as if the disk were full. Keep it around the call
/// under test alone: the limit holds for the test's own output, too.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small { bytes, m_before.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before {};
    void (*m_handlerBefore)(int) = std::signal(SIGXFSZ, SIG_IGN); ///< Then write(2) just fails.
};

/// While it lives, file permissions count even if the tests run as root.
class OrdinaryUser {
public:
    OrdinaryUser()
    {
        constexpr uid_t nobody = 65534;
        if (m_before == 0)
            static_cast<void>(::seteuid(nobody));
    }
    ~OrdinaryUser() { static_cast<void>(::seteuid(m_before)); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    uid_t m_before = ::geteuid();
};

} // namespace Orvello::Testing
