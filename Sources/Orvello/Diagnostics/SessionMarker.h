#pragma once

#include <optional>
#include <string>

namespace Orvello {

/// The file that exists exactly while a session runs. One that is found at the start was left by a
/// session that crashed or was killed, and its text says which. Every failure is swallowed.
class SessionMarker {
public:
    explicit SessionMarker(std::string path);

    /// The text of the marker without the white space around it, or nothing when there is no file
    /// that can be read as UTF-8.
    [[nodiscard]] std::optional<std::string> text() const;

    /// Writes the marker atomically, over any old one.
    void write(const std::string& text) const;

    void remove() const;

private:
    std::string m_path;
};

} // namespace Orvello
