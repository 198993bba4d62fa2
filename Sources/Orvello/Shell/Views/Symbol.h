#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>
#include <QSvgRenderer>
#include <QtQml/qqml.h>

namespace Orvello {

/// One of the small drawings in Resources/Icons in a colour, sharp at any size and scale, as large
/// as fits and in the middle. The names are those of the macOS symbols that they look like.
class Symbol : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ELEMENT

public:
    explicit Symbol(QQuickItem* parent = nullptr);
    ~Symbol() override;

    const QString& name() const { return m_name; }
    void setName(const QString& name); ///< Nothing is drawn for an unknown one.

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void nameChanged();
    void colorChanged();

private:
    QString m_name;
    QColor m_color = Qt::white;
    QSvgRenderer m_drawing;
};

} // namespace Orvello
