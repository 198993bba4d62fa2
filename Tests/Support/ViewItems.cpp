#include "Tests/Support/ViewItems.h"

#include "Tests/Support/EventLoop.h"

#include <QAccessible>
#include <QQuickWindow>
#include <QTest>

namespace Orvello::Testing {

namespace {

void collect(QQuickItem& item, QList<QQuickItem*>& result)
{
    if (!item.isVisible() || item.opacity() == 0)
        return;
    result.append(&item);
    for (QQuickItem* child : item.childItems())
        collect(*child, result);
}

} // namespace

QList<QQuickItem*> visibleItems(const QQuickWindow& window)
{
    QList<QQuickItem*> result;
    collect(*window.contentItem(), result);
    return result;
}

QString accessibleName(const QQuickItem& item)
{
    QAccessibleInterface* const accessible
        = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(&item));
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

QQuickItem* controlNamed(const QQuickWindow& window, const QString& name)
{
    for (QQuickItem* item : visibleItems(window)) {
        if (item->activeFocusOnTab() && accessibleName(*item) == name)
            return item;
    }
    return nullptr;
}

bool showsText(const QQuickWindow& window, const QString& text)
{
    for (const QQuickItem* item : visibleItems(window)) {
        if (item->property("text").toString() == text)
            return true;
    }
    return false;
}

QStringList visibleTexts(const QQuickWindow& window)
{
    QStringList texts;
    for (const QQuickItem* const item : visibleItems(window)) {
        if (const QString text = item->property("text").toString(); !text.isEmpty())
            texts.append(text);
    }
    return texts;
}

QRectF placeInWindow(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(QPointF(), item.size()));
}

void click(QQuickWindow& window, const QQuickItem& item)
{
    // Rows and layouts put their items in place no earlier than the next frame.
    for (QQuickItem* placed : visibleItems(window))
        placed->ensurePolished();
    QTest::mouseClick(&window, Qt::LeftButton, {}, placeInWindow(item).center().toPoint());
    drainEvents();
}

} // namespace Orvello::Testing
