#include "Orvello/Prompting/View/FadingTextNode.h"

#include "Orvello/Prompting/Text/EdgeFade.h"

#include <QSGMaterial>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

class FadingTextMaterial final : public QSGMaterial {
public:
    explicit FadingTextMaterial(QSGTexture& textTexture)
        : texture(textTexture)
    {
        setFlag(Blending);
    }

    QSGMaterialType* type() const override
    {
        static QSGMaterialType theType;
        return &theType;
    }
    QSGMaterialShader* createShader(QSGRendererInterface::RenderMode mode) const override;

    int compare(const QSGMaterial* other) const override
    {
        const qint64 difference = texture.comparisonKey()
            - static_cast<const FadingTextMaterial*>(other)->texture.comparisonKey();
        return difference < 0 ? -1 : static_cast<int>(difference > 0);
    }

    QSGTexture& texture;
};

class FadingTextShader final : public QSGMaterialShader {
public:
    FadingTextShader()
    {
        setShaderFileName(VertexStage, u":/qt/qml/Orvello/FadingText.vert.qsb"_s);
        setShaderFileName(FragmentStage, u":/qt/qml/Orvello/FadingText.frag.qsb"_s);
    }

    bool updateUniformData(
        RenderState& state, QSGMaterial* /*newMaterial*/, QSGMaterial* /*oldMaterial*/) override
    {
        constexpr int matrixBytes = 16 * sizeof(float);
        char* const uniforms = state.uniformData()->data();
        if (state.isMatrixDirty()) {
            const QMatrix4x4 matrix = state.combinedMatrix();
            std::memcpy(uniforms, matrix.constData(), matrixBytes);
        }
        if (state.isOpacityDirty()) {
            const float opacity = state.opacity();
            std::memcpy(uniforms + matrixBytes, &opacity, sizeof opacity);
        }
        return state.isMatrixDirty() || state.isOpacityDirty();
    }

    void updateSampledImage(RenderState& state, int /*binding*/, QSGTexture** texture,
        QSGMaterial* newMaterial, QSGMaterial* /*oldMaterial*/) override
    {
        QSGTexture& text = static_cast<FadingTextMaterial*>(newMaterial)->texture;
        text.commitTextureOperations(state.rhi(), state.resourceUpdateBatch());
        *texture = &text;
    }
};

QSGMaterialShader* FadingTextMaterial::createShader(QSGRendererInterface::RenderMode /*mode*/) const
{
    return new FadingTextShader;
}

struct Vertex {
    float x, y;
    float textureX, textureY;
    float visibility;
};

const QSGGeometry::AttributeSet& vertexAttributes()
{
    static const std::array attributes {
        QSGGeometry::Attribute::createWithAttributeType(
            0, 2, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            1, 2, QSGGeometry::FloatType, QSGGeometry::TexCoordAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            2, 1, QSGGeometry::FloatType, QSGGeometry::UnknownAttribute),
    };
    static const QSGGeometry::AttributeSet set { int(attributes.size()), sizeof(Vertex),
        attributes.data() };
    return set;
}

/// The rows of vertices on which the fade is exact: the picture's edges, as far as they are inside
/// the card, and the stops between them.
QList<double> rowsOf(const QRectF& place, double cardHeight)
{
    const double top = std::clamp(place.top(), 0.0, cardHeight);
    const double bottom = std::clamp(place.bottom(), 0.0, cardHeight);
    QList<double> rows { top };
    for (const double stop : EdgeFade::stops) {
        if (stop * cardHeight > top && stop * cardHeight < bottom)
            rows.append(stop * cardHeight);
    }
    rows.append(bottom);
    return rows;
}

} // namespace

FadingTextNode::FadingTextNode(std::unique_ptr<QSGTexture> texture)
    : m_texture(std::move(texture))
    , m_geometry(vertexAttributes(), 0)
{
    m_texture->setFiltering(QSGTexture::Linear);
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    setGeometry(&m_geometry);
    setMaterial(new FadingTextMaterial(*m_texture));
    setFlag(OwnsMaterial);
}

FadingTextNode::~FadingTextNode() = default;

void FadingTextNode::place(const QRectF& place, double cardHeight)
{
    if (place == m_place && cardHeight == m_cardHeight)
        return;
    m_place = place;
    m_cardHeight = cardHeight;

    const QList<double> rows = rowsOf(place, cardHeight);
    m_geometry.allocate(static_cast<int>(2 * rows.size()));
    auto* vertex = static_cast<Vertex*>(m_geometry.vertexData());
    for (const double row : rows) {
        const auto textureY = static_cast<float>((row - place.top()) / place.height());
        const auto visibility = static_cast<float>(EdgeFade::visibilityAt(row / cardHeight));
        const auto y = static_cast<float>(row);
        *vertex++ = { static_cast<float>(place.left()), y, 0, textureY, visibility };
        *vertex++ = { static_cast<float>(place.right()), y, 1, textureY, visibility };
    }
    markDirty(DirtyGeometry);
}

} // namespace Orvello
