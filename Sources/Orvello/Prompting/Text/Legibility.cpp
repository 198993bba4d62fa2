#include "Orvello/Prompting/Text/Legibility.h"

#include <algorithm>
#include <cmath>

namespace Orvello {

namespace {

/// The light that scatters on every screen, as a share of white's.
constexpr double flare = 0.05;

/// A colour is rounded twice on its way to the screen: by the card and by the outline.
constexpr double roundingReserve = 1.0 / 255;

// The transfer function of sRGB and its inverse.
constexpr double linearSlope = 12.92;
constexpr double gamma = 2.4;
constexpr double offset = 0.055;
constexpr double lastLinearLevel = 0.04045;

double lightOf(double level)
{
    return level <= lastLinearLevel ? level / linearSlope
                                    : std::pow((level + offset) / (1 + offset), gamma);
}

double levelOf(double light)
{
    return light <= lastLinearLevel / linearSlope
        ? light * linearSlope
        : (1 + offset) * std::pow(light, 1 / gamma) - offset;
}

double luminance(const QColor& color)
{
    return 0.2126 * lightOf(color.redF()) + 0.7152 * lightOf(color.greenF())
        + 0.0722 * lightOf(color.blueF());
}

double shareThroughCard(double cardOpacity) { return 1 - std::clamp(cardOpacity, 0.0, 1.0); }

} // namespace

double Legibility::contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
    return (lighter + flare) / (darker + flare);
}

QColor Legibility::throughCard(const QColor& under, double cardOpacity)
{
    const double share = shareThroughCard(cardOpacity);
    return QColor::fromRgbF(static_cast<float>(under.redF() * share),
        static_cast<float>(under.greenF() * share), static_cast<float>(under.blueF() * share));
}

QColor Legibility::outlineOf(const QColor& text, double cardOpacity)
{
    // Nothing under the card is brighter than white, and every level below it can be there, too.
    const double brightest = shareThroughCard(cardOpacity);
    const double darkEnough
        = levelOf(std::max((luminance(text) + flare) / smallestContrast - flare, 0.0));
    if (brightest <= darkEnough)
        return Qt::transparent;
    const double opacity = 1 - std::max(darkEnough - roundingReserve, 0.0) / brightest;
    return { 0, 0, 0, static_cast<int>(std::ceil(opacity * 255)) };
}

} // namespace Orvello
