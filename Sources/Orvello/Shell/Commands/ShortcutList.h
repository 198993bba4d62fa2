#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <QAbstractListModel>

#include <string_view>
#include <vector>

namespace Orvello {

/// The hot keys as a list for people: what each does, and what it is called on this keyboard.
class ShortcutList final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString toggleKey READ toggleKey NOTIFY keysChanged FINAL)
    Q_PROPERTY(Orvello::AssignedKeys* assignedKeys READ assignedKeys CONSTANT FINAL)
    Q_PROPERTY(QStringList menuLines READ menuLines CONSTANT FINAL)

public:
    enum Role {
        LabelRole = Qt::UserRole, ///< "label": what the keys do.
        KeysRole, ///< "keys": one key, or two with a separator.
    };

    /// How much room there is: the settings spell everything out, the tour does not.
    enum class Width { Full, Narrow };

    ShortcutList(HotKeys& keys, Width width); ///< `keys` must outlive the list.

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString toggleKey() const; ///< The key that starts and pauses.
    QStringList menuLines() const; ///< The menu lines that the tour mentions.

    AssignedKeys* assignedKeys() const { return &m_keys.assignedKeys(); }

Q_SIGNALS:
    void keysChanged();

private:
    void refresh();

    struct Row {
        std::string_view first;
        std::string_view second {}; ///< The opposite of the first; often there is none.
    };

    QString labelOf(const Row& row) const;
    QString keysOf(const Row& row) const;
    QString keyOf(std::string_view name) const;

    HotKeys& m_keys;
    const Width m_width;
    const std::vector<Row> m_rows {
        { "toggle" },
        { "faster", "slower" },
        { "restart" },
        { "hide" },
    };
};

} // namespace Orvello
