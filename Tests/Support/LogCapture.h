#pragma once

#include "Orvello/Diagnostics/AppLog.h"
#include "Tests/Support/FakeSystemLog.h"

#include <QTemporaryDir>

#include <string>
#include <vector>

namespace Orvello::Testing {

/// The log lines that were written since it was made, as the system log receives them.
class LogCapture {
public:
    std::vector<std::string> lines() const
    {
        std::vector<std::string> all = processLog().messages();
        all.erase(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(m_before));
        return all;
    }

    /// From now on, and until the journal is gone, the lines are noted there too.
    static void noteIn(Journal* journal) { processLog().journal = journal; }

    void clear() { m_before = processLog().messages().size(); }

private:
    /// The application log has one session per process, and so have the tests.
    static FakeSystemLog& processLog()
    {
        static FakeSystemLog systemLog;
        static const QTemporaryDir folder;
        static const bool isStarted = [] {
            AppLog::Session session;
            session.applicationSupport = folder.path().toStdString();
            session.systemLog = &systemLog;
            AppLog::start(session);
            return true;
        }();
        static_cast<void>(isStarted);
        return systemLog;
    }

    std::size_t m_before = processLog().messages().size();
};

} // namespace Orvello::Testing
