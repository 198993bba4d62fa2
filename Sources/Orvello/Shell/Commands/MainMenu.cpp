#include "Orvello/Shell/Commands/MainMenu.h"

#include <QGuiApplication>
#include <QMetaMethod>

namespace Orvello {

using namespace Qt::StringLiterals;

std::unique_ptr<Menu> makeMainMenu(const EditingTarget& sendToFirstResponder)
{
    auto mainMenu = std::make_unique<Menu>();
    Menu& edit = mainMenu->addSubmenu(u"Edit"_s);
    const auto add = [&](const QString& title, const char* command, const QString& key) {
        MenuItem& item = edit.addItem(
            title, [sendToFirstResponder, command] { sendToFirstResponder(command); });
        item.command = command;
        item.keyEquivalent = key;
    };
    add(u"Undo"_s, "undo", u"z"_s);
    add(u"Redo"_s, "redo", u"Z"_s);
    edit.addSeparator();
    add(u"Cut"_s, "cut", u"x"_s);
    add(u"Copy"_s, "copy", u"c"_s);
    add(u"Paste"_s, "paste", u"v"_s);
    add(u"Select All"_s, "selectAll", u"a"_s);
    return mainMenu;
}

void sendToFocusObject(const char* command)
{
    QObject* const focus = QGuiApplication::focusObject();
    if (focus && focus->metaObject()->indexOfMethod(QByteArray(command) + "()") >= 0)
        QMetaObject::invokeMethod(focus, command);
}

} // namespace Orvello
