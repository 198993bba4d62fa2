#include "Orvello/Prompting/View/Card.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Prompting/View/CardStyle.h"

#include <QQuickWindow>
#include <QSGFlatColorMaterial>
#include <QSGGeometryNode>
#include <QSGVertexColorMaterial>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Orvello {

namespace {

/// A quarter of a circle in this many straight pieces looks round at any scale in use.
constexpr int piecesPerCorner = 16;

/// Everything but the corners' squares, without blending.
class MiddleNode final : public QSGGeometryNode {
public:
    MiddleNode()
        : m_geometry(QSGGeometry::defaultAttributes_Point2D(), vertexCount)
    {
        m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
        setGeometry(&m_geometry);
        setMaterial(&m_material);
    }

    void fill(QSizeF size, double radius, const QColor& color)
    {
        const double right = size.width() - radius;
        const double bottom = size.height() - radius;
        QSGGeometry::Point2D* vertex = m_geometry.vertexDataAsPoint2D();
        for (const QRectF& part : { QRectF(radius, 0, right - radius, size.height()),
                 QRectF(0, radius, radius, bottom - radius),
                 QRectF(right, radius, radius, bottom - radius) }) {
            for (const QPointF& corner : { part.topLeft(), part.topRight(), part.bottomLeft(),
                     part.bottomLeft(), part.topRight(), part.bottomRight() })
                (vertex++)->set(static_cast<float>(corner.x()), static_cast<float>(corner.y()));
        }
        m_material.setColor(color);
        m_material.setFlag(QSGMaterial::Blending, false);
        markDirty(DirtyGeometry | DirtyMaterial);
    }

private:
    static constexpr int vertexCount = 3 * 6;

    QSGGeometry m_geometry;
    QSGFlatColorMaterial m_material;
};

/// Four quarters of a disc, with a soft edge a device pixel wide.
class CornersNode final : public QSGGeometryNode {
public:
    CornersNode()
        : m_geometry(QSGGeometry::defaultAttributes_ColoredPoint2D(), vertexCount)
    {
        m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
        setGeometry(&m_geometry);
        setMaterial(&m_material);
    }

    void fill(QSizeF size, double radius, const QColor& color, double scale)
    {
        m_vertex = m_geometry.vertexDataAsColoredPoint2D();
        const double right = size.width() - radius;
        const double bottom = size.height() - radius;
        const std::array centres { QPointF(right, bottom), QPointF(radius, bottom),
            QPointF(radius, radius), QPointF(right, radius) };
        for (std::size_t corner = 0; corner < centres.size(); ++corner)
            fillCorner(centres[corner], static_cast<double>(corner), radius, color, scale);
        markDirty(DirtyGeometry);
    }

private:
    static constexpr int verticesPerPiece = 9; // A piece of the disc, and two triangles of edge.
    static constexpr int vertexCount = 4 * piecesPerCorner * verticesPerPiece;

    void fillCorner(
        QPointF centre, double quarter, double radius, const QColor& color, double scale)
    {
        const double inner = radius - 0.5 / scale;
        const double outer = radius + 0.5 / scale;
        const auto at = [&](int piece, double distance) {
            const double angle = (quarter + piece / double(piecesPerCorner)) * std::numbers::pi / 2;
            return centre + distance * QPointF(std::cos(angle), std::sin(angle));
        };
        const QColor clear(Qt::transparent);
        for (int piece = 0; piece < piecesPerCorner; ++piece) {
            add(centre, color);
            add(at(piece, inner), color);
            add(at(piece + 1, inner), color);
            add(at(piece, inner), color);
            add(at(piece, outer), clear);
            add(at(piece + 1, inner), color);
            add(at(piece + 1, inner), color);
            add(at(piece, outer), clear);
            add(at(piece + 1, outer), clear);
        }
    }

    void add(QPointF point, const QColor& color)
    {
        const auto alpha = static_cast<float>(color.alphaF());
        const auto premultiplied
            = [&](float part) { return static_cast<uchar>(std::lround(part * alpha * 255)); };
        (m_vertex++)
            ->set(static_cast<float>(point.x()), static_cast<float>(point.y()),
                premultiplied(color.redF()), premultiplied(color.greenF()),
                premultiplied(color.blueF()), premultiplied(1));
    }

    QSGGeometry m_geometry;
    QSGVertexColorMaterial m_material;
    QSGGeometry::ColoredPoint2D* m_vertex = nullptr;
};

class CardNode final : public QSGNode {
public:
    CardNode()
    {
        for (QSGNode* node : { static_cast<QSGNode*>(&middle), static_cast<QSGNode*>(&corners) }) {
            node->setFlag(OwnedByParent, false);
            appendChildNode(node);
        }
    }
    ~CardNode() override { removeAllChildNodes(); }

    MiddleNode middle;
    CornersNode corners;
};

} // namespace

Card::Card(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void Card::setColor(const QColor& color)
{
    if (!assign(m_color, color))
        return;
    update();
    Q_EMIT colorChanged();
}

void Card::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

QSGNode* Card::updatePaintNode(QSGNode* root, UpdatePaintNodeData* /*data*/)
{
    auto* const node = root ? static_cast<CardNode*>(root) : new CardNode;
    const double radius = std::min({ CardStyle::cornerRadius, width() / 2, height() / 2 });
    node->middle.fill(size(), radius, m_color);
    node->corners.fill(size(), radius, m_color, window()->effectiveDevicePixelRatio());
    return node;
}

} // namespace Orvello
