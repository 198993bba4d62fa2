#pragma once

#include <QObject>
#include <QStringList>

namespace Orvello::Testing {

/// Something in a Qt window that has the keyboard and can be edited. It notes what it is asked.
class RecordingField final : public QObject {
    Q_OBJECT

public:
    QStringList commands;

public Q_SLOTS:
    void undo() { commands.append(QStringLiteral("undo")); }
    void redo() { commands.append(QStringLiteral("redo")); }
    void cut() { commands.append(QStringLiteral("cut")); }
    void copy() { commands.append(QStringLiteral("copy")); }
    void paste() { commands.append(QStringLiteral("paste")); }
    void selectAll() { commands.append(QStringLiteral("selectAll")); }
};

} // namespace Orvello::Testing
