#include "Tests/Gallery/ContactSheet.h"

#include "Tests/Gallery/Rendering.h"

#include <QPainter>

#include <algorithm>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

constexpr int sheetWidth = 2400;
constexpr int gap = 24; ///< Between two pictures, and at the sheet's edges.
constexpr int margin = 16; ///< How much wallpaper surrounds a window.
constexpr int nameHeight = 24;

struct Cell {
    QImage picture;
    QRect area; ///< The picture and the wallpaper around it; the name lies outside.
};

/// The cells in rows from left to right, as a page of words.
QList<Cell> placed(const Scenes& scenes, const QDir& folder)
{
    QList<Cell> cells;
    QPoint next(gap, gap);
    int rowHeight = 0;
    for (qsizetype i = 0; i < scenes.size(); ++i) {
        QImage picture(pictureOf(folder, i));
        picture.setDevicePixelRatio(1);
        const QSize size = picture.size() + QSize(2 * margin, 2 * margin);
        const bool beginsGroup
            = i > 0 && scenes[i].name.section(u':', 0, 0) != scenes[i - 1].name.section(u':', 0, 0);
        if (beginsGroup || next.x() + size.width() + gap > sheetWidth) {
            next = { gap, next.y() + rowHeight };
            rowHeight = 0;
        }
        cells.append({ picture, QRect(next, size) });
        next.rx() += size.width() + gap;
        rowHeight = std::max(rowHeight, size.height() + nameHeight + gap);
    }
    return cells;
}

QSize sizeOf(const QList<Cell>& cells)
{
    QSize size(sheetWidth, gap);
    for (const Cell& cell : cells)
        size = size.expandedTo({ cell.area.right() + gap, cell.area.bottom() + nameHeight + gap });
    return size;
}

} // namespace

QImage contactSheet(const Scenes& scenes, const QDir& folder)
{
    const QList<Cell> cells = placed(scenes, folder);
    QImage sheet(sizeOf(cells), QImage::Format_RGB32);
    sheet.fill(QColor(60, 62, 68));
    QPainter painter(&sheet);
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const QRect area = cells[i].area;
        paintWallpaper(painter, area, scenes[i].wallpaper);
        painter.drawImage(area.topLeft() + QPoint(margin, margin), cells[i].picture);
        painter.setPen(Qt::white);
        painter.drawText(QRect(area.left(), area.bottom(), area.width(), nameHeight),
            Qt::AlignVCenter | Qt::TextDontClip, scenes[i].name);
    }
    return sheet;
}

} // namespace Orvello::Gallery
