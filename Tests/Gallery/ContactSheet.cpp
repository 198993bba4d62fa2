#include "Tests/Gallery/ContactSheet.h"

#include "Tests/Gallery/Rendering.h"

#include <QFileInfo>
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
    qsizetype scene = 0;
    qsizetype sheet = 0;
};

/// The cells in rows from left to right, as a page of words.
QList<Cell> placed(const Scenes& scenes, const QDir& folder)
{
    QList<Cell> cells;
    QPoint next(gap, gap);
    int rowHeight = 0;
    qsizetype rowBegin = 0;
    qsizetype sheet = 0;
    for (qsizetype i = 0; i < scenes.size(); ++i) {
        QImage picture(pictureOf(folder, i));
        picture.setDevicePixelRatio(1);
        const QSize size = picture.size() + QSize(2 * margin, 2 * margin);
        const bool beginsGroup
            = i > 0 && scenes[i].name.section(u':', 0, 0) != scenes[i - 1].name.section(u':', 0, 0);
        if (beginsGroup || next.x() + size.width() + gap > sheetWidth) {
            next = { gap, next.y() + rowHeight };
            rowHeight = 0;
            rowBegin = i;
        }
        cells.append({ picture, QRect(next, size), i, sheet });
        next.rx() += size.width() + gap;
        rowHeight = std::max(rowHeight, size.height() + nameHeight + gap);
        if (next.y() + rowHeight <= largestSheet || cells[rowBegin].area.top() == gap)
            continue;
        // The row begins the next sheet.
        ++sheet;
        for (qsizetype moved = rowBegin; moved <= i; ++moved) {
            cells[moved].sheet = sheet;
            cells[moved].area.moveTop(gap);
        }
        next.setY(gap);
    }
    return cells;
}

QSize sizeOf(const QList<Cell>& cells, qsizetype sheet)
{
    QSize size(sheetWidth, gap);
    for (const Cell& cell : cells) {
        if (cell.sheet == sheet)
            size = size.expandedTo(
                { cell.area.right() + gap, cell.area.bottom() + nameHeight + gap });
    }
    return size;
}

QImage paintedSheet(const Scenes& scenes, const QList<Cell>& cells, qsizetype number)
{
    QImage sheet(sizeOf(cells, number), QImage::Format_RGB32);
    sheet.fill(QColor(60, 62, 68));
    QPainter painter(&sheet);
    for (const Cell& cell : cells) {
        if (cell.sheet != number)
            continue;
        const Scene& scene = scenes[cell.scene];
        paintWallpaper(painter, cell.area, scene.wallpaper);
        painter.drawImage(cell.area.topLeft() + QPoint(margin, margin), cell.picture);
        painter.setPen(Qt::white);
        painter.drawText(QRect(cell.area.left(), cell.area.bottom(), cell.area.width(), nameHeight),
            Qt::AlignVCenter | Qt::TextDontClip, scene.name);
    }
    return sheet;
}

} // namespace

QList<QImage> contactSheets(const Scenes& scenes, const QDir& folder)
{
    const QList<Cell> cells = placed(scenes, folder);
    QList<QImage> sheets;
    for (qsizetype i = 0; i <= cells.last().sheet; ++i)
        sheets.append(paintedSheet(scenes, cells, i));
    return sheets;
}

QByteArray indexPage(const Scenes& scenes, const QString& folderName, const QStringList& sheetNames)
{
    QString page = u"<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<title>Orvello's windows</title>\n"
                   "<style>body { font-family: sans-serif; background: #3c3e44; color: white } "
                   "a { color: inherit } img { max-width: 100% }</style>\n"_s;
    for (const QString& sheet : sheetNames)
        page += u"<a href=\"%1\">%1</a>\n"_s.arg(sheet);
    QString group;
    for (qsizetype i = 0; i < scenes.size(); ++i) {
        if (const QString next = scenes[i].name.section(u':', 0, 0); next != group) {
            group = next;
            page += u"<h2>%1</h2>\n"_s.arg(group.toHtmlEscaped());
        }
        page += u"<h3>%1</h3>\n<img loading=\"lazy\" alt=\"\" src=\"%2/%3\">\n"_s.arg(
            scenes[i].name.toHtmlEscaped(), folderName, QFileInfo(pictureOf(QDir(), i)).fileName());
    }
    return page.toUtf8();
}

} // namespace Orvello::Gallery
