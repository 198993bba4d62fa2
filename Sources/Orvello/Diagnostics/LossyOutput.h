#pragma once

#include <string_view>

namespace Orvello {

/// Writes lines to whoever reads a descriptor, such as standard error, and loses them rather than
/// wait: a terminal may be paused, and a pipe's reader busy or gone. Any thread.
class LossyOutput {
public:
    explicit LossyOutput(int descriptor);
    ~LossyOutput();
    LossyOutput(const LossyOutput&) = delete;
    LossyOutput& operator=(const LossyOutput&) = delete;

    /// With its line feed, in one call, so that lines from several threads stay whole.
    void write(std::string_view line) noexcept;

    /// Opens nothing in the place of each standard stream that the program was started without.
    /// Otherwise the next file that is opened becomes standard error, and gets the lines. Before
    /// anything else is opened.
    static void fillStandardStreams() noexcept;

private:
    int m_descriptor; ///< The given one where this one cannot have its own.
    bool m_isOwn = false;
    bool m_isSocket = false;
    bool m_mayWait = false; ///< Once more is written than it takes at a time.
};

} // namespace Orvello
