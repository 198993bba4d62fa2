#pragma once

#include <QRectF>
#include <QSGGeometryNode>
#include <QSGTexture>

#include <memory>

namespace Orvello {

/// A line's picture in the scene graph, dissolving toward the edges of the card that it moves over.
/// Render thread.
class FadingTextNode final : public QSGGeometryNode {
public:
    explicit FadingTextNode(std::unique_ptr<QSGTexture> texture);
    ~FadingTextNode() override;

    /// Where the picture stands, on a card of that height.
    void place(const QRectF& place, double cardHeight);

private:
    std::unique_ptr<QSGTexture> m_texture;
    QSGGeometry m_geometry;
    QRectF m_place;
    double m_cardHeight = 0;
};

} // namespace Orvello
