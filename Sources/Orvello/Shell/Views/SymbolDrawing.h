#pragma once

#include <QHash>
#include <QPainterPath>
#include <QPointF>
#include <QString>

#include <initializer_list>

namespace Orvello {

/// What a symbol is drawn from, on a square.
struct SymbolDrawing {
    QPainterPath strokes; ///< Of the pen's width, with round ends.
    double penWidth = 1.6;
    QPainterPath fill;
    double side = 10; ///< Of the square.
};

/// A path through each of the lists of points.
[[nodiscard]] QPainterPath lines(std::initializer_list<std::initializer_list<QPointF>> all);

/// The symbols of the welcome tour, which are shown larger and drawn finer than the others.
[[nodiscard]] QHash<QString, SymbolDrawing> tourSymbols();

} // namespace Orvello
