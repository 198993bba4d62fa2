#include "Orvello/Prompting/Panel/PanelFrame.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Orvello::PanelFrame {

using namespace Qt::StringLiterals;

namespace {

constexpr double panelWidth = 720;
constexpr double panelHeight = 200;
constexpr double gapBelowScreenTop = 6;

/// A panel of which less than this lies on a screen, in either direction, is hard to find and drag
/// back.
constexpr double grabbable = 40;

bool isGrabbable(const QRectF& frame, const QRectF& screen)
{
    const QRectF seen = frame.intersected(screen);
    return seen.width() >= std::min(grabbable, frame.width())
        && seen.height() >= std::min(grabbable, frame.height());
}

double distance(const QRectF& frame, const QRectF& screen)
{
    const QPointF between = frame.center() - screen.center();
    return std::hypot(between.x(), between.y());
}

const QRectF& mainScreen(const QList<QRectF>& screens)
{
    return screens.isEmpty() ? assumedScreen : screens.first();
}

/// The frame with its y axis reversed. Its own inverse.
QRectF flippedVertically(const QRectF& frame, const QList<QRectF>& screens)
{
    const auto isPrimary = [](const QRectF& screen) { return screen.topLeft().isNull(); };
    const auto primary = std::ranges::find_if(screens, isPrimary);
    const double height = (primary == screens.end() ? mainScreen(screens) : *primary).height();
    return { frame.x(), height - frame.y() - frame.height(), frame.width(), frame.height() };
}

QString number(double value) { return QString::number(value, 'g', 12); }

} // namespace

QRectF initial(const QList<QRectF>& screens)
{
    const QRectF screen = mainScreen(screens);
    return { screen.center().x() - panelWidth / 2, screen.top() + gapBelowScreenTop, panelWidth,
        panelHeight };
}

QRectF onScreen(const QRectF& frame, const QList<QRectF>& screens)
{
    const auto holds = [&](const QRectF& screen) { return isGrabbable(frame, screen); };
    if (screens.isEmpty() || std::ranges::any_of(screens, holds))
        return frame;
    const QRectF screen = *std::ranges::min_element(
        screens, {}, [&](const QRectF& candidate) { return distance(frame, candidate); });
    const double width = std::min(frame.width(), screen.width());
    const double height = std::min(frame.height(), screen.height());
    return { std::clamp(frame.x(), screen.left(), screen.right() - width),
        std::clamp(frame.y(), screen.top(), screen.bottom() - height), width, height };
}

QRectF withSizeBetween(const QRectF& frame, QSizeF smallest, QSizeF largest)
{
    const double width = std::clamp(frame.width(), smallest.width(), largest.width());
    const double height = std::clamp(frame.height(), smallest.height(), largest.height());
    return { frame.x(), frame.y(), width, height };
}

QString description(const QRectF& frame, const QList<QRectF>& screens)
{
    const QRectF counted = flippedVertically(frame, screens);
    return u"{{%1, %2}, {%3, %4}}"_s.arg(number(counted.x()), number(counted.y()),
        number(counted.width()), number(counted.height()));
}

QString text(const QRectF& frame, const QList<QRectF>& screens)
{
    QStringList numbers;
    for (const QRectF& part :
        { flippedVertically(frame, screens), flippedVertically(mainScreen(screens), screens) }) {
        for (const double value : { part.x(), part.y(), part.width(), part.height() })
            numbers.append(number(value));
    }
    return numbers.join(u' ');
}

std::optional<QRectF> parsed(const QString& text, const QList<QRectF>& screens)
{
    constexpr double farthest = 1e6; // Points; no desktop is larger.
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    std::array<double, 4> values {};
    if (words.size() < qsizetype(values.size()))
        return std::nullopt;
    for (std::size_t i = 0; i < values.size(); ++i) {
        bool isNumber = false;
        values[i] = words[qsizetype(i)].toDouble(&isNumber);
        if (!isNumber || !(std::abs(values[i]) <= farthest))
            return std::nullopt;
    }
    const QRectF frame(values[0], values[1], values[2], values[3]);
    if (frame.width() <= 0 || frame.height() <= 0)
        return std::nullopt;
    return flippedVertically(frame, screens);
}

} // namespace Orvello::PanelFrame
