#pragma once

#include <QQuickItem>
#include <QString>

namespace Orvello {

/// A button as a screen reader finds it, disabled while the item is: what Qt Quick 6.4 itself
/// reports about an item never says so. The item has to have Accessible.role as well, by which the
/// one above finds it. It shows nothing and takes no click.
class AccessibleButton : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged FINAL)
    QML_ELEMENT

public:
    explicit AccessibleButton(QQuickItem* parent = nullptr);

    const QString& name() const { return m_name; }

Q_SIGNALS:
    void nameChanged();
    void pressed(); ///< By the screen reader; never while the item is disabled.

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QString m_name;
};

} // namespace Orvello
