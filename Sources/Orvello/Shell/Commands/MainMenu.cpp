#include "Orvello/Shell/Commands/MainMenu.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMetaMethod>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Orvello::MainMenu", text);
}

} // namespace

std::unique_ptr<Menu> makeMainMenu(const EditingTarget& sendToFirstResponder)
{
    auto mainMenu = std::make_unique<Menu>();
    Menu& edit = mainMenu->addSubmenu(translated(QT_TRANSLATE_NOOP("Orvello::MainMenu", "Edit")));
    const auto add = [&](const char* title, const char* command, const QString& key) {
        MenuItem& item = edit.addItem(
            translated(title), [sendToFirstResponder, command] { sendToFirstResponder(command); });
        item.command = command;
        item.keyEquivalent = key;
    };
    add(QT_TRANSLATE_NOOP("Orvello::MainMenu", "Undo"), "undo", u"z"_s);
    add(QT_TRANSLATE_NOOP("Orvello::MainMenu", "Redo"), "redo", u"Z"_s);
    edit.addSeparator();
    add(QT_TRANSLATE_NOOP("Orvello::MainMenu", "Cut"), "cut", u"x"_s);
    add(QT_TRANSLATE_NOOP("Orvello::MainMenu", "Copy"), "copy", u"c"_s);
    add(QT_TRANSLATE_NOOP("Orvello::MainMenu", "Paste"), "paste", u"v"_s);
    add(QT_TRANSLATE_NOOP("Orvello::MainMenu", "Select All"), "selectAll", u"a"_s);
    return mainMenu;
}

void sendToFocusObject(const char* command)
{
    QObject* const focus = QGuiApplication::focusObject();
    if (focus && focus->metaObject()->indexOfMethod(QByteArray(command) + "()") >= 0)
        QMetaObject::invokeMethod(focus, command);
}

} // namespace Orvello
