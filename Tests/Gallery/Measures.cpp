#include "Tests/Gallery/Measures.h"

#include "Orvello/Prompting/Text/EdgeFade.h"
#include "Orvello/Prompting/Text/PromptLines.h"

#include <QGlyphRun>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

/// How far from the line between the background's and the text's colour a pixel of the text may be,
/// in grey levels.
constexpr double colorTolerance = 26;

/// A pixel with so much of the text's colour is ink. Thin strokes cover no pixel whole.
constexpr double smallestInk = 0.3;

/// How far from the margin a line may begin, in points: letters have bearings.
constexpr double bearing = 8;

struct Rgb {
    double red = 0;
    double green = 0;
    double blue = 0;

    explicit Rgb(const QColor& color)
        : red(color.red())
        , green(color.green())
        , blue(color.blue())
    {
    }
    Rgb(double r, double g, double b)
        : red(r)
        , green(g)
        , blue(b)
    {
    }
    friend Rgb operator-(const Rgb& a, const Rgb& b)
    {
        return { a.red - b.red, a.green - b.green, a.blue - b.blue };
    }
    friend Rgb operator*(const Rgb& a, double factor)
    {
        return { a.red * factor, a.green * factor, a.blue * factor };
    }
    double length() const { return std::hypot(red, green, blue); }
    double dot(const Rgb& other) const
    {
        return red * other.red + green * other.green + blue * other.blue;
    }
};

bool isOfClass(const QQuickItem& item, const char* name)
{
    return QByteArrayView(item.metaObject()->className()).startsWith(name);
}

bool isText(const QQuickItem& item)
{
    return (item.inherits("QQuickText") || item.inherits("QQuickTextEdit")
               || item.inherits("QQuickTextInput"))
        && !item.property("text").toString().trimmed().isEmpty();
}

/// With what is above it in the tree.
double opacityOf(const QQuickItem& item)
{
    double opacity = 1;
    for (const QQuickItem* each = &item; each; each = each->parentItem())
        opacity *= each->opacity();
    return opacity;
}

QRectF placeOf(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(QPointF(), item.size()));
}

/// Whether all of the place is inside the window and inside whatever cuts the item off.
bool isWhollyInSight(const QQuickWindow& window, const QQuickItem& item, const QRectF& place)
{
    if (!QRectF(QPointF(), window.size()).adjusted(-1, -1, 1, 1).contains(place))
        return false;
    for (const QQuickItem* each = item.parentItem(); each; each = each->parentItem()) {
        if (each->clip() && !placeOf(*each).adjusted(-1, -1, 1, 1).contains(place))
            return false;
        // A list keeps the rows that it no longer shows, for later.
        if (each->inherits("QQuickListView") && each->property("count").toInt() == 0)
            return false;
    }
    return true;
}

/// The visible items in the order in which they are drawn.
void collectVisible(const QQuickItem& item, QList<const QQuickItem*>& items)
{
    QList<QQuickItem*> children = item.childItems();
    std::ranges::stable_sort(children, {}, [](const QQuickItem* child) { return child->z(); });
    for (const QQuickItem* const child : children) {
        // A list keeps a row that has left it, and draws it no longer, until it is used for
        // another.
        const bool hasLeftItsList
            = child->property("index").isValid() && child->property("index").toInt() < 0;
        if (!child->isVisible() || child->opacity() == 0 || hasLeftItsList)
            continue;
        items.append(child);
        collectVisible(*child, items);
    }
}

/// One look at a window and its picture.
class Inspection {
public:
    Inspection(const QQuickWindow& window, const QImage& picture)
        : m_window(window)
        , m_picture(picture.convertToFormat(QImage::Format_ARGB32))
        , m_scale(double(picture.width()) / window.width())
    {
        collectVisible(*window.contentItem(), m_items);
    }

    QStringList faults()
    {
        for (const QQuickItem* const item : m_items) {
            if (isText(*item))
                lookAtText(*item);
            else if (item->inherits("Orvello::PromptText"))
                lookAtPrompt(*item);
        }
        lookForOverlaps();
        return m_faults;
    }

private:
    void complain(const QString& fault) { m_faults.append(fault); }

    QRect pixelsOf(const QRectF& place) const
    {
        return QRectF(place.topLeft() * m_scale, place.size() * m_scale)
            .toAlignedRect()
            .intersected(m_picture.rect());
    }

    /// What the pixel looks like over black, as the prompter's card is.
    Rgb at(int x, int y) const
    {
        const QColor color = m_picture.pixelColor(x, y);
        return Rgb(color) * color.alphaF();
    }

    /// The colour that most of the place has.
    Rgb backgroundOf(const QRect& area) const
    {
        std::map<QRgb, int> counts;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x)
                ++counts[m_picture.pixel(x, y)];
        }
        if (counts.empty())
            return { 0, 0, 0 };
        const auto most
            = std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; });
        const QColor color = QColor::fromRgba(most->first);
        return Rgb(color) * color.alphaF();
    }

    /// Where in the area there is ink of that colour; empty for nowhere. In device pixels.
    QRect inkOf(const QColor& color, double opacity, const QRect& area) const
    {
        const Rgb background = backgroundOf(area);
        const double share = color.alphaF() * opacity;
        const Rgb way = (Rgb(color) - background) * share;
        if (way.length() < colorTolerance)
            return area; // Nothing to tell it by.
        QRect ink;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const Rgb gone = at(x, y) - background;
                const double part = gone.dot(way) / way.dot(way);
                if (part > smallestInk && (gone - way * part).length() < colorTolerance)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

    void lookAtText(const QQuickItem& item)
    {
        const QString text = item.property("text").toString();
        const QRectF place = placeOf(item);
        if (!isWhollyInSight(m_window, item, place) || isCovered(item, place))
            return;
        const QFont font = item.property("font").value<QFont>();
        if (const QString missing = missingSigns(text, font); !missing.isEmpty())
            complain(u"no font has %1 of \"%2\""_s.arg(missing, text.left(40)));
        const QColor color = item.property("color").value<QColor>();
        if (inkOf(color, opacityOf(item), pixelsOf(place)).isEmpty())
            complain(u"no ink of the colour %1 where \"%2\" is due"_s.arg(
                color.name(QColor::HexArgb), text.left(40)));
    }

    /// Whether something that is drawn later may lie over the place: what is opened over a window.
    bool isCovered(const QQuickItem& item, const QRectF& place) const
    {
        const auto self = std::ranges::find(m_items, &item);
        return std::any_of(self, m_items.end(), [&](const QQuickItem* later) {
            return later->inherits("QQuickOverlay") && later != &item && !later->isAncestorOf(&item)
                && (!later->childItems().isEmpty() || later->property("modal").toBool())
                && placeOf(*later).intersects(place);
        });
    }

    static QString missingSigns(const QString& text, const QFont& font)
    {
        QTextLayout layout(text, font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        return missingSigns(layout.glyphRuns());
    }

    static QString missingSigns(const QList<QGlyphRun>& runs)
    {
        qsizetype missing = 0;
        for (const QGlyphRun& run : runs)
            missing += run.glyphIndexes().count(0);
        return missing == 0 ? QString() : u"%1 signs"_s.arg(missing);
    }

    void lookAtPrompt(const QQuickItem& item)
    {
        const auto& lines = *item.property("lines").value<PromptLines*>();
        const PromptTypography& typography = lines.shownTypography();
        const QRectF card = placeOf(item);
        const double fullFrom = card.top() + EdgeFade::stops[1] * card.height();
        const double fullUntil = card.top() + EdgeFade::stops[2] * card.height();
        const double width = typography.width * typography.scale;
        const double left = card.left() + (card.width() - width) / 2;
        for (const PromptLine& line : lines.visibleLines()) {
            const QTextLine laidOut = line.inPiece();
            if (laidOut.naturalTextWidth() == 0)
                continue;
            const QString text = line.piece->lineText(line.index).trimmed();
            if (const QString missing = missingSigns(laidOut.glyphRuns()); !missing.isEmpty())
                complain(u"no font has %1 of \"%2\""_s.arg(missing, text.left(40)));
            const double baseline
                = card.top() + line.baseline * typography.scale - lines.visibleTop();
            const QRectF place(left - bearing,
                baseline - 0.55 * typography.font.pixelSize() * typography.scale,
                width + 2 * bearing, 0.55 * typography.font.pixelSize() * typography.scale);
            if (place.top() < fullFrom || place.bottom() > fullUntil || isUnderNotice(place))
                continue;
            m_lines.append(place);
            lookAtLine(item, line, text, place);
        }
    }

    void lookAtLine(
        const QQuickItem& item, const PromptLine& line, const QString& text, const QRectF& place)
    {
        const QRect area = pixelsOf(place);
        const QRect ink = inkOf(inkColor(item), 1, area);
        if (ink.isEmpty()) {
            complain(u"no ink where the line \"%1\" is due"_s.arg(text.left(40)));
            return;
        }
        const bool isRightToLeft = line.piece->isRightToLeft();
        const double away = isRightToLeft ? area.right() - ink.right() : ink.left() - area.left();
        if (away > 3 * bearing * m_scale)
            complain(u"the line \"%1\" does not begin at the %2"_s.arg(
                text.left(40), isRightToLeft ? u"right"_s : u"left"_s));
    }

    /// The colour of the script's letters, behind the veil of a countdown if there is one.
    QColor inkColor(const QQuickItem& item) const
    {
        const QColor color = item.property("color").value<QColor>();
        const bool isVeiled = std::ranges::any_of(
            m_items, [](const QQuickItem* each) { return isOfClass(*each, "Countdown_"); });
        constexpr int veiled = 250; // Per cent of the brightness that a veil of 60 % leaves.
        return isVeiled ? color.darker(veiled) : color;
    }

    bool isUnderNotice(const QRectF& place) const
    {
        return std::ranges::any_of(m_items, [&](const QQuickItem* each) {
            return isOfClass(*each, "ShareNotice_") && placeOf(*each).intersects(place);
        });
    }

    void lookForOverlaps()
    {
        static constexpr std::array names { "StatusBadge_", "RecordingBadge_", "SlideChip_",
            "ShareNotice_" };
        QList<std::pair<QByteArray, QRectF>> places;
        for (const QQuickItem* const item : m_items) {
            for (const char* const name : names) {
                if (isOfClass(*item, name))
                    places.append({ QByteArray(name).chopped(1), placeOf(*item) });
            }
        }
        for (qsizetype i = 0; i < places.size(); ++i) {
            const auto& [name, place] = places[i];
            for (qsizetype j = 0; j < i; ++j) {
                if (place.intersects(places[j].second))
                    complain(u"%1 and %2 lie over each other"_s.arg(
                        QLatin1StringView(places[j].first), QLatin1StringView(name)));
            }
            for (const QRectF& line : m_lines) {
                if (place.intersects(line))
                    complain(u"%1 lies over a line"_s.arg(QLatin1StringView(name)));
            }
        }
    }

    const QQuickWindow& m_window;
    const QImage m_picture;
    const double m_scale;
    QList<const QQuickItem*> m_items;
    QList<QRectF> m_lines; ///< The prompter's, in full view.
    QStringList m_faults;
};

} // namespace

QStringList faultsOf(const QQuickWindow& window, const QImage& picture)
{
    return Inspection(window, picture).faults();
}

} // namespace Orvello::Gallery
