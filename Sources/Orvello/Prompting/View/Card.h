#pragma once

#include <QColor>
#include <QQuickItem>

namespace Orvello {

/// The translucent, rounded card that everything else lies on. It is drawn over nothing: what lies
/// below it belongs to other windows. So all of it but its corners is written without blending,
/// which costs a software renderer a fraction of what a translucent rectangle does.
class Card : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    explicit Card(QQuickItem* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* root, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    QColor m_color = Qt::black;
};

} // namespace Orvello
