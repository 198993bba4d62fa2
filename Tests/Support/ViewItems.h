#pragma once

#include <QList>
#include <QQuickItem>
#include <QRectF>
#include <QString>

class QQuickWindow;

/// Finds what a view shows the way a screen reader does, and works it with mouse and keys.
namespace Orvello::Testing {

/// Every item that can be seen, from the root on.
QList<QQuickItem*> visibleItems(const QQuickWindow& window);

QString accessibleName(const QQuickItem& item);

/// The visible item of that accessible name that takes the keyboard, or null.
QQuickItem* controlNamed(const QQuickWindow& window, const QString& name);

/// Whether a visible item shows exactly that text.
bool showsText(const QQuickWindow& window, const QString& text);

/// What every visible item shows as its text.
QStringList visibleTexts(const QQuickWindow& window);

QRectF placeInWindow(const QQuickItem& item);

void click(QQuickWindow& window, const QQuickItem& item);

} // namespace Orvello::Testing
