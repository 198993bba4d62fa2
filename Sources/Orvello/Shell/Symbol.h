#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqml.h>

namespace Orvello {

/// A small line drawing on a button or beside a text, in the names that the Mac has for them:
/// "plus", "minus", "rectangle.on.rectangle", "square.and.arrow.down". Nothing for any other name.
class Symbol : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)
    QML_ELEMENT

public:
    explicit Symbol(QQuickItem* parent = nullptr);
    ~Symbol() override;

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QString m_name;
    QColor m_color = Qt::black;
};

} // namespace Orvello
