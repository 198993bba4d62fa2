#include "Orvello/Prompting/Text/EdgeFade.h"

#include <algorithm>
#include <cmath>

namespace Orvello {

double EdgeFade::visibilityAt(double height)
{
    const auto [top, opaqueFrom, opaqueUntil, bottom] = stops;
    const double fromTop = (height - top) / (opaqueFrom - top);
    const double fromBottom = (bottom - height) / (bottom - opaqueUntil);
    return std::clamp(std::min(fromTop, fromBottom), 0.0, 1.0);
}

std::vector<EdgeFade::Band> EdgeFade::bands(double cardHeight, double scale)
{
    const double rows = std::ceil(cardHeight * scale);
    std::vector<Band> bands;
    for (double row = 0; row < rows;) {
        const double zone = row < rows / 2 ? stops[1] - stops[0] : stops[3] - stops[2];
        const double rowsPerBand = std::ceil(zone * rows * smallestStep);
        const bool isOpaque = visibilityAt((row + 0.5) / rows) >= 1;
        const double next = std::min(row + (isOpaque ? 1 : rowsPerBand), rows);
        const double visibility = visibilityAt((row + next) / 2 / rows);
        if (isOpaque && !bands.empty() && bands.back().visibility >= 1)
            bands.back().bottom = next / scale;
        else if (visibility > 0)
            bands.push_back({ row / scale, next / scale, visibility });
        row = next;
    }
    return bands;
}

} // namespace Orvello
