#pragma once

#include <QPalette>

namespace Orvello::Gallery {

/// How the desktop around a window looks.
enum class Look { Light, Dark };

/// Gives the application the desktop's palette for as long as it exists.
class StagePalette {
public:
    explicit StagePalette(Look look);
    ~StagePalette();
    StagePalette(const StagePalette&) = delete;
    StagePalette& operator=(const StagePalette&) = delete;

private:
    const QPalette m_before;
};

} // namespace Orvello::Gallery
