#include "Orvello/Prompting/Text/EdgeFade.h"

#include <algorithm>

double Orvello::EdgeFade::visibilityAt(double height)
{
    const auto [top, opaqueFrom, opaqueUntil, bottom] = stops;
    const double fromTop = (height - top) / (opaqueFrom - top);
    const double fromBottom = (bottom - height) / (bottom - opaqueUntil);
    return std::clamp(std::min(fromTop, fromBottom), 0.0, 1.0);
}
