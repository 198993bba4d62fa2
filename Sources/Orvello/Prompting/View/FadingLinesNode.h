#pragma once

#include "Orvello/Prompting/Text/EdgeFade.h"

#include <QImage>
#include <QRectF>
#include <QSGNode>

#include <map>
#include <memory>
#include <span>
#include <vector>

class QQuickWindow;
class QSGImageNode;
class QSGOpacityNode;
class QSGTexture;

namespace Orvello {

/// The pictures of the visible lines in the scene graph, dissolving toward the edges of the card
/// that they move over. It is made of images and opacity alone, which every renderer of Qt Quick
/// draws: for each band of the card in which the text is equally visible an opacity, and under it
/// the part of each picture that is in the band. It is a transform, although it changes nothing: to
/// nodes that come later, Qt's software renderer knows the place of a parent of this kind, and
/// takes any other for the scene's origin. Render thread.
class FadingLinesNode final : public QSGTransformNode {
public:
    struct Picture {
        quint64 id = 0; ///< The same for the same pixels, and never used again.
        QImage pixels;
        QRectF place; ///< On the card.
    };

    explicit FadingLinesNode(QQuickWindow& window); ///< The window whose scene it is in.
    ~FadingLinesNode() override;

    /// Shows these pictures and no others, on a card of that height with that many device pixels
    /// in a point.
    void show(std::span<const Picture> pictures, double cardHeight, double scale);

private:
    struct Band {
        EdgeFade::Band area;
        QSGOpacityNode* node = nullptr; ///< Owned by this node.
        std::vector<QSGImageNode*> images; ///< Owned by the opacity.
    };

    void makeBands(double cardHeight, double scale);
    void dropTexturesExceptOf(std::span<const Picture> pictures);
    QSGTexture& textureOf(const Picture& picture);
    void showIn(Band& band, std::span<const Picture> pictures);

    QQuickWindow& m_window;
    double m_cardHeight = 0;
    double m_scale = 0;
    std::vector<Band> m_bands;
    std::map<quint64, std::unique_ptr<QSGTexture>> m_textures;
};

} // namespace Orvello
