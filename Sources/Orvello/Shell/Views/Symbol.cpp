#include "Orvello/Shell/Views/Symbol.h"

#include "Orvello/Foundation/Assign.h"

#include <QPainter>

namespace Orvello {

using namespace Qt::StringLiterals;

Symbol::Symbol(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    m_drawing.setAspectRatioMode(Qt::KeepAspectRatio);
}

Symbol::~Symbol() = default;

void Symbol::setName(const QString& name)
{
    if (!assign(m_name, name))
        return;
    const bool isKnown = m_drawing.load(u":/Orvello/Icons/%1.svg"_s.arg(name));
    const QSize size = isKnown ? m_drawing.defaultSize() : QSize(0, 0);
    setImplicitSize(size.width(), size.height());
    update();
    Q_EMIT nameChanged();
}

void Symbol::setColor(const QColor& color)
{
    if (!assign(m_color, color))
        return;
    update();
    Q_EMIT colorChanged();
}

void Symbol::paint(QPainter* painter)
{
    m_drawing.render(painter, boundingRect());
    painter->setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter->fillRect(boundingRect(), m_color);
}

} // namespace Orvello
