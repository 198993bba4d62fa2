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

double primaryHeight(const QList<QRectF>& screens)
{
    const auto isPrimary = [](const QRectF& screen) { return screen.topLeft().isNull(); };
    const auto primary = std::ranges::find_if(screens, isPrimary);
    return (primary == screens.end() ? mainScreen(screens) : *primary).height();
}

/// The frame with its y axis reversed on a primary screen of that height. Its own inverse.
QRectF flippedVertically(const QRectF& frame, double height)
{
    return { frame.x(), height - frame.y() - frame.height(), frame.width(), frame.height() };
}

const QRectF& nearest(const QRectF& frame, const QList<QRectF>& screens)
{
    return *std::ranges::min_element(
        screens, {}, [&](const QRectF& screen) { return distance(frame, screen); });
}

/// Moved, and shrunk if it must be, until all of it is on the screen.
QRectF inside(const QRectF& frame, const QRectF& screen)
{
    const double width = std::min(frame.width(), screen.width());
    const double height = std::min(frame.height(), screen.height());
    return { std::clamp(frame.x(), screen.left(), screen.right() - width),
        std::clamp(frame.y(), screen.top(), screen.bottom() - height), width, height };
}

QRectF atTopCentre(QSizeF size, const QRectF& screen)
{
    return { screen.center().x() - size.width() / 2, screen.top() + gapBelowScreenTop, size.width(),
        size.height() };
}

/// The same place as seen from the top centre of another screen.
QRectF carriedOver(const QRectF& frame, const QRectF& from, const QRectF& to)
{
    return frame.translated(to.center().x() - from.center().x(), to.top() - from.top());
}

QString number(double value) { return QString::number(value, 'g', 12); }

} // namespace

QRectF initial(const QList<QRectF>& screens)
{
    return atTopCentre({ panelWidth, panelHeight }, mainScreen(screens));
}

QRectF underCamera(QSizeF size, QPointF point, const QList<QRectF>& screens)
{
    const auto under = std::ranges::find_if(
        screens, [&](const QRectF& screen) { return screen.contains(point); });
    const QRectF& screen = under == screens.end() ? mainScreen(screens) : *under;
    return inside(atTopCentre(size, screen), screen);
}

Home homeAt(const QRectF& frame, const QList<QRectF>& screens)
{
    if (screens.isEmpty())
        return { frame, {} };
    const auto seen = [&](const QRectF& screen) {
        const QRectF part = frame.intersected(screen);
        return part.width() * part.height();
    };
    const QRectF& most = *std::ranges::max_element(screens, {}, seen);
    return { frame, seen(most) > 0 ? most : nearest(frame, screens) };
}

QRectF placeOf(const Home& home, const QList<QRectF>& screens)
{
    const QRectF& frame = home.frame;
    if (screens.isEmpty())
        return frame;
    if (home.screen.isEmpty() || screens.contains(home.screen)) {
        const auto holds = [&](const QRectF& screen) { return isGrabbable(frame, screen); };
        return std::ranges::any_of(screens, holds) ? frame : inside(frame, nearest(frame, screens));
    }
    // The primary screen stays what it is, however large; another one may have gone.
    const bool wasPrimary = home.screen.topLeft().isNull();
    const auto primary = std::ranges::find_if(
        screens, [](const QRectF& screen) { return screen.topLeft().isNull(); });
    const QRectF& screen
        = wasPrimary && primary != screens.end() ? *primary : nearest(home.screen, screens);
    return inside(carriedOver(frame, home.screen, screen), screen);
}

QRectF withSizeBetween(const QRectF& frame, QSizeF smallest, QSizeF largest)
{
    const double width = std::clamp(frame.width(), smallest.width(), largest.width());
    const double height = std::clamp(frame.height(), smallest.height(), largest.height());
    return { frame.x(), frame.y(), width, height };
}

QString description(const QRectF& frame, const QList<QRectF>& screens)
{
    const QRectF counted = flippedVertically(frame, primaryHeight(screens));
    return u"{{%1, %2}, {%3, %4}}"_s.arg(number(counted.x()), number(counted.y()),
        number(counted.width()), number(counted.height()));
}

QString text(const Home& home, const QList<QRectF>& screens)
{
    const double height = primaryHeight(screens);
    const QRectF screen = home.screen.isEmpty() ? mainScreen(screens) : home.screen;
    QStringList numbers;
    for (const QRectF& part :
        { flippedVertically(home.frame, height), flippedVertically(screen, height) }) {
        for (const double value : { part.x(), part.y(), part.width(), part.height() })
            numbers.append(number(value));
    }
    return numbers.join(u' ');
}

std::optional<Home> parsed(const QString& text, const QList<QRectF>& screens)
{
    constexpr double farthest = 1e6; // Points; no desktop is larger.
    constexpr qsizetype partSize = 4;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    const auto partFrom = [&](qsizetype first) -> std::optional<QRectF> {
        std::array<double, partSize> values {};
        if (words.size() < first + partSize)
            return std::nullopt;
        for (std::size_t i = 0; i < values.size(); ++i) {
            bool isNumber = false;
            values[i] = words[first + qsizetype(i)].toDouble(&isNumber);
            if (!isNumber || !(std::abs(values[i]) <= farthest))
                return std::nullopt;
        }
        const QRectF part(values[0], values[1], values[2], values[3]);
        return part.width() > 0 && part.height() > 0 ? std::optional(part) : std::nullopt;
    };
    const std::optional<QRectF> frame = partFrom(0);
    if (!frame)
        return std::nullopt;
    const std::optional<QRectF> screen = partFrom(partSize);
    // Heights were counted on the primary screen of then. If this was it, its height is known.
    const bool wasPrimary = screen && screen->topLeft().isNull();
    const double height = wasPrimary ? screen->height() : primaryHeight(screens);
    return Home { flippedVertically(*frame, height),
        screen ? flippedVertically(*screen, height) : QRectF() };
}

} // namespace Orvello::PanelFrame
