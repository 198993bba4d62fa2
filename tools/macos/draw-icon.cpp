// Draws the application icon, from which everything else is scaled:
//   c++ -std=c++20 -fPIC tools/macos/draw-icon.cpp $(pkg-config --cflags --libs Qt6Gui) -o
//   draw-icon
//   ./draw-icon Resources/AppIcon-1024.png
//
// A camera's lens above the prompter's card: the line to read now is bright, the others fade out.

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int side = 1024;

// Apple's icon grid: the tile leaves a margin for its shadow.
const QRectF tile(100, 100, 824, 824);
constexpr double tileRadius = 185;

void drawTile(QPainter& painter)
{
    QPainterPath shape;
    shape.addRoundedRect(tile, tileRadius, tileRadius);
    for (int spread = 24; spread > 0; --spread) {
        QPainterPath shadow;
        const double grown = spread * 0.6;
        shadow.addRoundedRect(tile.adjusted(-grown, -grown + 12, grown, grown + 12),
            tileRadius + grown, tileRadius + grown);
        painter.fillPath(shadow, QColor(0, 0, 0, 3));
    }
    QLinearGradient night(tile.topLeft(), tile.bottomLeft());
    night.setColorAt(0, QColor(74, 86, 214));
    night.setColorAt(0.55, QColor(44, 42, 120));
    night.setColorAt(1, QColor(22, 20, 62));
    painter.fillPath(shape, night);
    painter.setPen(QPen(QColor(255, 255, 255, 40), 4));
    painter.drawPath(shape);
}

void drawLens(QPainter& painter)
{
    const QPointF center(512, 262);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(10, 10, 28));
    painter.drawEllipse(center, 70, 70);
    QRadialGradient glass(center + QPointF(-14, -16), 66);
    glass.setColorAt(0, QColor(150, 190, 255));
    glass.setColorAt(0.45, QColor(52, 74, 170));
    glass.setColorAt(1, QColor(14, 16, 48));
    painter.setBrush(glass);
    painter.drawEllipse(center, 50, 50);
    painter.setBrush(QColor(255, 255, 255, 210));
    painter.drawEllipse(center + QPointF(-17, -18), 11, 11);
}

void drawCard(QPainter& painter)
{
    const QRectF card(196, 384, 632, 420);
    QPainterPath shape;
    shape.addRoundedRect(card, 62, 62);
    painter.fillPath(shape, QColor(6, 6, 20, 205));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 46), 4));
    painter.drawPath(shape);

    struct Line {
        double width;
        int opacity;
    };
    constexpr Line lines[] { { 420, 66 }, { 500, 255 }, { 350, 190 }, { 460, 110 }, { 260, 52 } };
    double top = card.top() + 58;
    painter.setPen(Qt::NoPen);
    for (const Line& line : lines) {
        painter.setBrush(
            line.opacity == 255 ? QColor(255, 214, 82) : QColor(255, 255, 255, line.opacity));
        painter.drawRoundedRect(QRectF(card.left() + 66, top, line.width, 34), 17, 17);
        top += 68;
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTile(painter);
    drawLens(painter);
    drawCard(painter);
    painter.end();
    return image.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
