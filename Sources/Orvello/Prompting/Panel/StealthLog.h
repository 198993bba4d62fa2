#pragma once

#include <QString>

namespace Orvello {

class Folders;

/// The log of every Stealth Mode decision: "stealth.log" in the product's application-support
/// folder, one line a message. It never interrupts anything: every failure is ignored. Main thread.
class StealthLog final {
public:
    /// A log beyond this size is deleted before the next line.
    static constexpr qint64 largestSize = 256'000;

    explicit StealthLog(const Folders& folders); ///< `folders` must outlive the log.

    /// Appends the time, a blank, the message and a line feed.
    void write(const QString& message);

private:
    const QString& filePath();

    const Folders& m_folders;
    QString m_filePath; ///< Settled at the first use.
};

} // namespace Orvello
