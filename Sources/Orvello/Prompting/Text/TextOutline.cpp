#include "Orvello/Prompting/Text/TextOutline.h"

#include <algorithm>
#include <vector>

namespace Orvello {

namespace {

constexpr int opaque = 255;

/// How opaque each pixel is, row by row. Loops run along rows, for the compiler to do many pixels
/// at a time.
struct Plane {
    int width;
    int height;
    std::vector<uchar> pixels;

    explicit Plane(QSize size)
        : width(size.width())
        , height(size.height())
        , pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    {
    }

    uchar* row(int y) { return pixels.data() + static_cast<std::ptrdiff_t>(y) * width; }
    const uchar* row(int y) const { return pixels.data() + static_cast<std::ptrdiff_t>(y) * width; }
};

Plane opacityOf(const QImage& image)
{
    Plane plane(image.size());
    for (int y = 0; y < plane.height; ++y) {
        const auto* const from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::transform(from, from + plane.width, plane.row(y),
            [](QRgb pixel) { return static_cast<uchar>(qAlpha(pixel)); });
    }
    return plane;
}

void raiseTo(uchar* row, const uchar* other, int count)
{
    for (int i = 0; i < count; ++i)
        row[i] = std::max(row[i], other[i]);
}

/// Each pixel becomes as opaque as the most opaque one of those that far around it.
Plane widened(const Plane& plane, int across, int along)
{
    Plane wide = plane;
    for (int y = 0; y < plane.height; ++y) {
        for (int shift = 1; shift <= std::min(across, plane.width); ++shift) {
            raiseTo(wide.row(y), plane.row(y) + shift, plane.width - shift);
            raiseTo(wide.row(y) + shift, plane.row(y), plane.width - shift);
        }
    }
    Plane result = wide;
    for (int y = 0; y < plane.height; ++y) {
        const int last = std::min(y + along, plane.height - 1);
        for (int other = std::max(y - along, 0); other <= last; ++other)
            raiseTo(result.row(y), wide.row(other), plane.width);
    }
    return result;
}

/// Each pixel becomes the mean of those that far around it; outside, all is clear.
Plane blurred(const Plane& plane, int across, int along)
{
    Plane soft(QSize(plane.width, plane.height));
    const int columns = 2 * across + 1;
    for (int y = 0; y < plane.height; ++y) {
        const uchar* const from = plane.row(y);
        int sum = 0;
        for (int x = -across; x < plane.width; ++x) {
            if (x + across < plane.width)
                sum += from[x + across];
            if (x - across > 0)
                sum -= from[x - across - 1];
            if (x >= 0)
                soft.row(y)[x] = static_cast<uchar>(sum / columns);
        }
    }
    Plane result(QSize(plane.width, plane.height));
    const int rows = 2 * along + 1;
    std::vector<int> sums(static_cast<std::size_t>(plane.width));
    const auto add = [&](int y, int sign) {
        const uchar* const from = soft.row(y);
        for (int x = 0; x < plane.width; ++x)
            sums[static_cast<std::size_t>(x)] += sign * from[x];
    };
    for (int y = -along; y < plane.height; ++y) {
        if (y + along < plane.height)
            add(y + along, 1);
        if (y - along > 0)
            add(y - along - 1, -1);
        if (y < 0)
            continue;
        std::ranges::transform(
            sums, result.row(y), [rows](int sum) { return static_cast<uchar>(sum / rows); });
    }
    return result;
}

} // namespace

QImage TextOutline::around(
    const QImage& letters, const QColor& color, const Reach& across, const Reach& along)
{
    // Whatever is blurred into a pixel within the full reach is opaque, too.
    const Plane shade
        = blurred(widened(opacityOf(letters), across.full + across.soft, along.full + along.soft),
            across.soft, along.soft);
    QImage result = letters;
    for (int y = 0; y < result.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const int seen = shade.row(y)[x] * (opaque - qAlpha(row[x])) / opaque;
            if (seen == 0)
                continue;
            const QRgb under = qPremultiply(
                qRgba(color.red(), color.green(), color.blue(), color.alpha() * seen / opaque));
            // Premultiplied colours over each other are sums.
            row[x] = qRgba(qRed(row[x]) + qRed(under), qGreen(row[x]) + qGreen(under),
                qBlue(row[x]) + qBlue(under), qAlpha(row[x]) + qAlpha(under));
        }
    }
    return result;
}

} // namespace Orvello
