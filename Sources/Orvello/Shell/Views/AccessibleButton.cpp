#include "Orvello/Shell/Views/AccessibleButton.h"

#include <QAccessibleObject>
#include <QQuickWindow>

namespace Orvello {

namespace {

class ButtonInterface final : public QAccessibleObject, public QAccessibleActionInterface {
public:
    explicit ButtonInterface(AccessibleButton& button)
        : QAccessibleObject(&button)
        , m_button(button)
    {
    }

    QWindow* window() const override { return m_button.window(); }
    QAccessibleInterface* parent() const override
    {
        for (QQuickItem* item = m_button.parentItem(); item; item = item->parentItem()) {
            if (QAccessibleInterface* const above = QAccessible::queryAccessibleInterface(item))
                return above;
        }
        return QAccessible::queryAccessibleInterface(window());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QAccessible::Role role() const override { return QAccessible::PushButton; }
    QString text(QAccessible::Text text) const override
    {
        return text == QAccessible::Name ? m_button.name() : QString();
    }
    QRect rect() const override
    {
        return QRectF(m_button.mapToGlobal({ 0, 0 }), m_button.size()).toRect();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.disabled = !m_button.isEnabled();
        state.invisible = !window() || !window()->isVisible() || !m_button.isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return { pressAction() }; }
    void doAction(const QString& name) override
    {
        if (name == pressAction() && m_button.isEnabled())
            Q_EMIT m_button.pressed();
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    AccessibleButton& m_button;
};

/// Called for every class in an object's inheritance chain.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    auto* const button
        = className == QLatin1StringView(AccessibleButton::staticMetaObject.className())
        ? qobject_cast<AccessibleButton*>(object)
        : nullptr;
    return button ? new ButtonInterface(*button) : nullptr;
}

} // namespace

AccessibleButton::AccessibleButton(QQuickItem* parent)
    : QQuickItem(parent)
{
    QAccessible::installFactory(makeInterface); // Later calls find it installed.
}

void AccessibleButton::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change != ItemEnabledHasChanged)
        return;
    QAccessible::State changed;
    changed.disabled = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace Orvello
