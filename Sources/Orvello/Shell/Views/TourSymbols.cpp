#include "Orvello/Shell/Views/SymbolDrawing.h"

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr double pen = 0.8;

QPainterPath stroked(const QPainterPath& path, double width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(path);
}

QPainterPath rounded(const QRectF& rectangle, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rectangle, radius, radius);
    return path;
}

/// One shape in front of another, with a gap around the one in front.
QPainterPath before(const QPainterPath& front, const QPainterPath& back)
{
    return stroked(back, pen).subtracted(front.united(stroked(front, 2.4 * pen)));
}

SymbolDrawing eyeSlash()
{
    QPainterPath outline(QPointF(0.6, 5));
    outline.quadTo({ 5, 0.1 }, { 9.4, 5 });
    outline.quadTo({ 5, 9.9 }, { 0.6, 5 });
    QPainterPath iris;
    iris.addEllipse(QPointF(5, 5), 1.5, 1.5);
    const QPainterPath slash = lines({ { { 1.7, 1.3 }, { 8.3, 8.7 } } });
    const QPainterPath eye = stroked(outline, pen).united(iris);
    return { .fill = eye.subtracted(stroked(slash, 2.6 * pen)).united(stroked(slash, pen)) };
}

SymbolDrawing waveform()
{
    QPainterPath bars;
    double x = 0.9;
    for (const double height : { 1.4, 4.6, 8.2, 5.4, 7.0, 2.6 }) {
        bars.addPath(lines({ { { x, 5 - height / 2 }, { x, 5 + height / 2 } } }));
        x += 1.64;
    }
    return { .strokes = bars, .penWidth = pen };
}

SymbolDrawing rectangleOnRectangle()
{
    const QPainterPath front = rounded({ 0.6, 3.5, 6.6, 5 }, 0.9);
    const QPainterPath back = rounded({ 2.8, 1.5, 6.6, 5 }, 0.9);
    return { .strokes = front, .penWidth = pen, .fill = before(front, back) };
}

SymbolDrawing checkmarkShieldFill()
{
    QPainterPath shield(QPointF(5, 0.3));
    shield.quadTo({ 6.8, 1.6 }, { 9, 1.7 });
    shield.lineTo(9, 4.8);
    shield.cubicTo({ 9, 7.2 }, { 7.2, 9 }, { 5, 9.8 });
    shield.cubicTo({ 2.8, 9 }, { 1, 7.2 }, { 1, 4.8 });
    shield.lineTo(1, 1.7);
    shield.quadTo({ 3.2, 1.6 }, { 5, 0.3 });
    const QPainterPath mark = lines({ { { 3.1, 5.1 }, { 4.5, 6.5 }, { 7, 3.6 } } });
    return { .fill = shield.subtracted(stroked(mark, 1.1)) };
}

SymbolDrawing macwindowOnRectangle()
{
    const QRectF frame(0.6, 3.3, 6.8, 5.4);
    const QPainterPath front = rounded(frame, 0.9);
    QPainterPath titleBar;
    titleBar.addRect(frame.x(), frame.y(), frame.width(), 2.2);
    const QPainterPath back = rounded({ 2.6, 1.3, 6.8, 5.4 }, 0.9);
    return { .strokes = front,
        .penWidth = pen,
        .fill = before(front, back).united(titleBar.intersected(front)) };
}

SymbolDrawing keyboard()
{
    QPainterPath keys;
    for (int key = 0; key < 5; ++key)
        keys.addEllipse(QPointF(1.9 + 1.55 * key, 4), 0.48, 0.48);
    keys.addEllipse(QPointF(1.9, 6.1), 0.48, 0.48);
    keys.addEllipse(QPointF(8.1, 6.1), 0.48, 0.48);
    keys.addPath(rounded({ 3, 5.65, 4, 0.9 }, 0.45));
    return { .strokes = rounded({ 0.4, 2.2, 9.2, 5.7 }, 1.1), .penWidth = pen, .fill = keys };
}

SymbolDrawing menubarRectangle()
{
    const QRectF frame(0.6, 1.4, 8.8, 7.2);
    const QPainterPath screen = rounded(frame, 1.1);
    QPainterPath bar;
    bar.addRect(frame.x(), frame.y(), frame.width(), 2.2);
    QPainterPath item;
    item.addEllipse(QPointF(7.4, 2.4), 0.5, 0.5);
    return { .strokes = screen, .penWidth = pen, .fill = bar.intersected(screen).subtracted(item) };
}

SymbolDrawing videoFill()
{
    QPainterPath camera = rounded({ 0.4, 2.3, 6.2, 5.4 }, 1.3);
    const QPainterPath lens
        = lines({ { { 7.4, 4.5 }, { 9.3, 3.2 }, { 9.3, 6.8 }, { 7.4, 5.5 }, { 7.4, 4.5 } } });
    camera.addPath(lens.united(stroked(lens, 0.5)));
    return { .fill = camera };
}

SymbolDrawing docOnDoc()
{
    const QPainterPath front = rounded({ 0.9, 2.9, 5.2, 6.5 }, 0.9);
    const QPainterPath back = rounded({ 3.9, 0.6, 5.2, 6.5 }, 0.9);
    return { .strokes = front, .penWidth = pen, .fill = before(front, back) };
}

SymbolDrawing checkmark()
{
    return { .strokes = lines({ { { 1.4, 5.4 }, { 3.9, 7.9 }, { 8.6, 2.3 } } }), .penWidth = 1.1 };
}

} // namespace

QHash<QString, SymbolDrawing> tourSymbols()
{
    return {
        { u"eye.slash"_s, eyeSlash() },
        { u"waveform"_s, waveform() },
        { u"rectangle.on.rectangle"_s, rectangleOnRectangle() },
        { u"checkmark.shield.fill"_s, checkmarkShieldFill() },
        { u"macwindow.on.rectangle"_s, macwindowOnRectangle() },
        { u"keyboard"_s, keyboard() },
        { u"menubar.rectangle"_s, menubarRectangle() },
        { u"video.fill"_s, videoFill() },
        { u"doc.on.doc"_s, docOnDoc() },
        { u"checkmark"_s, checkmark() },
    };
}

} // namespace Orvello
