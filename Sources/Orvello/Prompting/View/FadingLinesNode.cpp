#include "Orvello/Prompting/View/FadingLinesNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <algorithm>

namespace Orvello {

FadingLinesNode::FadingLinesNode(QQuickWindow& window)
    : m_window(window)
{
}

FadingLinesNode::~FadingLinesNode()
{
    m_bands.clear();
    while (QSGNode* const child = firstChild())
        delete child; // Before the textures that they show.
}

void FadingLinesNode::show(std::span<const Picture> pictures, double cardHeight, double scale)
{
    if (cardHeight != m_cardHeight || scale != m_scale)
        makeBands(cardHeight, scale);
    for (Band& band : m_bands)
        showIn(band, pictures);
    dropTexturesExceptOf(pictures);
}

void FadingLinesNode::makeBands(double cardHeight, double scale)
{
    m_cardHeight = cardHeight;
    m_scale = scale;
    m_bands.clear();
    while (QSGNode* const child = firstChild())
        delete child;
    for (const EdgeFade::Band& area : EdgeFade::bands(cardHeight, scale)) {
        auto* const node = new QSGOpacityNode;
        node->setOpacity(area.visibility);
        appendChildNode(node);
        m_bands.push_back({ area, node, {} });
    }
}

void FadingLinesNode::dropTexturesExceptOf(std::span<const Picture> pictures)
{
    std::erase_if(m_textures, [&](const auto& texture) {
        return std::ranges::find(pictures, texture.first, &Picture::id) == pictures.end();
    });
}

QSGTexture& FadingLinesNode::textureOf(const Picture& picture)
{
    std::unique_ptr<QSGTexture>& texture = m_textures[picture.id];
    if (!texture)
        texture.reset(
            m_window.createTextureFromImage(picture.pixels, QQuickWindow::TextureHasAlphaChannel));
    return *texture;
}

void FadingLinesNode::showIn(Band& band, std::span<const Picture> pictures)
{
    std::size_t used = 0;
    for (const Picture& picture : pictures) {
        const QRectF& place = picture.place;
        const double top = std::max(place.top(), band.area.top);
        const double bottom = std::min(place.bottom(), band.area.bottom);
        if (top >= bottom)
            continue;
        if (used == band.images.size()) {
            band.images.push_back(m_window.createImageNode());
            band.images.back()->setFiltering(QSGTexture::Linear);
            band.images.back()->setTexture(&textureOf(picture));
            band.node->appendChildNode(band.images.back());
        }
        QSGImageNode& image = *band.images[used++];
        if (QSGTexture& texture = textureOf(picture); image.texture() != &texture)
            image.setTexture(&texture);
        const double rowsPerPoint = picture.pixels.height() / place.height();
        image.setSourceRect(0, (top - place.top()) * rowsPerPoint, picture.pixels.width(),
            (bottom - top) * rowsPerPoint);
        image.setRect(place.left(), top, place.width(), bottom - top);
    }
    while (band.images.size() > used) {
        delete band.images.back();
        band.images.pop_back();
    }
}

} // namespace Orvello
