#include "Orvello/Shell/Commands/ShortcutList.h"

#include "Orvello/Shell/Commands/Command.h"

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// How many characters at the beginning of both are modifiers: "⌥⌘" of "⌥⌘↑" and "⌥⌘↓", "Ctrl+" of
/// "Ctrl+F1" and "Ctrl+F2".
qsizetype commonModifiers(const QString& first, const QString& second)
{
    const auto difference = std::mismatch(first.begin(), first.end(), second.begin(), second.end());
    qsizetype length = difference.first - first.begin();
    while (length > 0 && first[length - 1].isLetterOrNumber())
        --length;
    return length;
}

} // namespace

ShortcutList::ShortcutList(HotKeys& keys, Width width)
    : m_keys(keys)
    , m_width(width)
{
    connect(&keys.assignedKeys(), &AssignedKeys::triggersChanged, this, &ShortcutList::refresh);
    connect(&keys.assignedKeys(), &AssignedKeys::troublesChanged, this, &ShortcutList::refresh);
}

int ShortcutList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ShortcutList::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case LabelRole:
        return labelOf(row);
    case KeysRole:
        return keysOf(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> ShortcutList::roleNames() const
{
    return { { LabelRole, "label" }, { KeysRole, "keys" } };
}

QString ShortcutList::labelOf(const Row& row) const
{
    const Command& command = Commands::named(row.first);
    if (!row.second.empty()) {
        //: What two keys do, one each. The second text is for a narrow list: at most about 20
        //: characters.
        return m_width == Width::Full ? tr("Speed up / down") : tr("Speed");
    }
    return m_width == Width::Full ? Commands::description(command)
                                  : Commands::shortDescription(command);
}

QString ShortcutList::keysOf(const Row& row) const
{
    const QString first = keyOf(row.first);
    if (row.second.empty())
        return first;
    const QString second = keyOf(row.second);
    if (m_width == Width::Full)
        return u"%1  /  %2"_s.arg(first, second);
    return u"%1 %2"_s.arg(first, second.sliced(commonModifiers(first, second)));
}

/// With what keeps it from working, where there is room for that.
QString ShortcutList::keyOf(std::string_view name) const
{
    const Command& command = Commands::named(name);
    const QString label = Commands::keyLabel(command, m_keys);
    const QString purpose = Commands::purpose(command).name;
    const AssignedKeys& assigned = m_keys.assignedKeys();
    const auto trouble = assigned.troubles().constFind(purpose);
    const bool isOfDesktop = assigned.triggers().contains(purpose);
    if (m_width == Width::Narrow || isOfDesktop || trouble == assigned.troubles().constEnd())
        return label;
    //: %1: a key that does nothing, and why.
    return *trouble == AssignedKeys::Trouble::Taken ? tr("%1 (another program has it)").arg(label)
                                                    //: %1: a key that does nothing, and why.
                                                    : tr("%1 (not on this keyboard)").arg(label);
}

QString ShortcutList::toggleKey() const
{
    return Commands::keyLabel(Commands::named("toggle"), m_keys);
}

QStringList ShortcutList::menuLines() const
{
    QStringList lines;
    for (const char* const name : { "toggle", "voice", "tracking", "stealth" })
        lines.append(Commands::description(Commands::named(name)));
    return lines;
}

/// The user has assigned other keys.
void ShortcutList::refresh()
{
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), { KeysRole });
    Q_EMIT keysChanged();
}

} // namespace Orvello
