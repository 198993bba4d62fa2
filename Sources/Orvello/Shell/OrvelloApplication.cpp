#include "Orvello/Shell/OrvelloApplication.h"

#include "Orvello/Shell/Menu.h"
#include "Orvello/Shell/QtMenu.h"

#include "Version.h"

#include <QEvent>
#include <QMenuBar>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

OrvelloApplication::OrvelloApplication(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments)
{
    setApplicationName(u"Orvello"_s);
    setApplicationVersion(QString::fromLatin1(version));
    setQuitOnLastWindowClosed(false);
}

OrvelloApplication::~OrvelloApplication() = default;

void OrvelloApplication::setMainMenu(std::unique_ptr<Menu> menu)
{
    m_mainMenu = std::move(menu);
    // Without a parent it is the menu bar of every window and of none.
    m_menuBar = std::make_unique<QMenuBar>();
    for (const auto& item : m_mainMenu->items()) {
        if (!item->submenu)
            continue;
        m_menus.push_back(std::make_unique<QtMenu>(*item->submenu));
        m_menuBar->addMenu(m_menus.back().get());
    }
}

/// The system asks for the end of the program, at a log-out for example. Qt would close every
/// window first, and closing the welcome tour counts as having seen it.
bool OrvelloApplication::event(QEvent* event)
{
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    exit();
    return true;
}

} // namespace Orvello
