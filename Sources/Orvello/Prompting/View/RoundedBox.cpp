#include "Orvello/Prompting/View/RoundedBox.h"

#include "Orvello/Foundation/Assign.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <QSGTexture>

#include <algorithm>
#include <memory>

namespace Orvello {

namespace {

struct Look {
    QSizeF size;
    QColor color;
    QColor lineColor;
    int cornerPixels = 0;
    double scale = 1;

    friend bool operator==(const Look&, const Look&) = default;
};

/// A disc, of which each corner shows a quarter.
QImage discOf(const Look& look)
{
    const int side = 2 * look.cornerPixels;
    QImage disc(side, side, QImage::Format_ARGB32_Premultiplied);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.color);
    painter.drawEllipse(0, 0, side, side);
    if (look.lineColor.alpha() > 0) {
        painter.setPen(QPen(look.lineColor, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QRectF(0.5, 0.5, side - 1, side - 1));
    }
    return disc;
}

/// A transform, although it changes nothing: to nodes that come later, Qt's software renderer knows
/// the place of a parent of this kind, and takes any other for the scene's origin.
class BoxNode final : public QSGTransformNode {
public:
    explicit BoxNode(QQuickWindow& window)
        : m_window(window)
    {
    }
    ~BoxNode() override { clear(); }

    void show(const Look& look)
    {
        if (look == m_look)
            return;
        m_look = look;
        clear();
        const double width = look.size.width();
        const double height = look.size.height();
        const double corner = look.cornerPixels / look.scale;
        const double line = 1 / look.scale;
        fill({ corner, 0, width - 2 * corner, height }, look.color);
        fill({ 0, corner, corner, height - 2 * corner }, look.color);
        fill({ width - corner, corner, corner, height - 2 * corner }, look.color);
        for (const QRectF& edge : { QRectF(corner, 0, width - 2 * corner, line),
                 QRectF(corner, height - line, width - 2 * corner, line),
                 QRectF(0, corner, line, height - 2 * corner),
                 QRectF(width - line, corner, line, height - 2 * corner) })
            fill(edge, look.lineColor);
        if (look.cornerPixels == 0)
            return;
        m_disc.reset(
            m_window.createTextureFromImage(discOf(look), QQuickWindow::TextureHasAlphaChannel));
        const double half = look.cornerPixels;
        showQuarter({ 0, 0, corner, corner }, { 0, 0 });
        showQuarter({ width - corner, 0, corner, corner }, { half, 0 });
        showQuarter({ 0, height - corner, corner, corner }, { 0, half });
        showQuarter({ width - corner, height - corner, corner, corner }, { half, half });
    }

private:
    void clear()
    {
        while (QSGNode* const child = firstChild())
            delete child;
        m_disc.reset(); // After those that show it.
    }

    void fill(const QRectF& area, const QColor& color)
    {
        if (area.isEmpty() || color.alpha() == 0)
            return;
        QSGRectangleNode* const node = m_window.createRectangleNode();
        node->setRect(area);
        node->setColor(color);
        appendChildNode(node);
    }

    void showQuarter(const QRectF& area, QPointF from)
    {
        QSGImageNode* const node = m_window.createImageNode();
        node->setTexture(m_disc.get());
        node->setSourceRect(QRectF(from, QSizeF(m_look.cornerPixels, m_look.cornerPixels)));
        node->setRect(area);
        appendChildNode(node);
    }

    QQuickWindow& m_window;
    Look m_look;
    std::unique_ptr<QSGTexture> m_disc;
};

} // namespace

RoundedBox::RoundedBox(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void RoundedBox::setColor(const QColor& color)
{
    if (!assign(m_color, color))
        return;
    update();
    Q_EMIT colorChanged();
}

void RoundedBox::setLineColor(const QColor& color)
{
    if (!assign(m_lineColor, color))
        return;
    update();
    Q_EMIT lineColorChanged();
}

void RoundedBox::setRadius(double points)
{
    if (!assign(m_radius, points))
        return;
    update();
    Q_EMIT radiusChanged();
}

void RoundedBox::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

void RoundedBox::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}

QSGNode* RoundedBox::updatePaintNode(QSGNode* root, UpdatePaintNodeData* /*data*/)
{
    auto* const node = root ? static_cast<BoxNode*>(root) : new BoxNode(*window());
    const double scale = window()->effectiveDevicePixelRatio();
    const double radius = std::min({ m_radius, width() / 2, height() / 2 });
    node->show({ size(), m_color, m_lineColor, qRound(radius * scale), scale });
    return node;
}

} // namespace Orvello
