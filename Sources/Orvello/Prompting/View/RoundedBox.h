#pragma once

#include <QColor>
#include <QQuickItem>

namespace Orvello {

/// A rectangle with round corners, and a hair line along its edge if it has a colour for one. The
/// corners are pictures, so that they look the same whichever renderer of Qt Quick draws them.
class RoundedBox : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(QColor lineColor READ lineColor WRITE setLineColor NOTIFY lineColorChanged FINAL)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)

public:
    explicit RoundedBox(QQuickItem* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    QColor lineColor() const { return m_lineColor; }
    void setLineColor(const QColor& color);

    double radius() const { return m_radius; }
    void setRadius(double points);

Q_SIGNALS:
    void colorChanged();
    void lineColorChanged();
    void radiusChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* root, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QColor m_color = Qt::black;
    QColor m_lineColor = Qt::transparent;
    double m_radius = 0;
};

} // namespace Orvello
