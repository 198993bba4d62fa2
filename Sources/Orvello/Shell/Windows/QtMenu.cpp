#include "Orvello/Shell/Windows/QtMenu.h"

#include "Orvello/Shell/Commands/Menu.h"

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// The letter of a key equivalent with the command key, which Qt calls Ctrl on every system.
QKeySequence shortcut(const QString& letter)
{
    if (letter.isEmpty())
        return {};
    const QString shift = letter.at(0).isUpper() ? u"Shift+"_s : QString();
    return { u"Ctrl+"_s + shift + letter.toUpper() };
}

} // namespace

QtMenu::QtMenu(Menu& menu)
    : QMenu(menu.title())
    , m_menu(menu)
{
    addLines();
    follow();
    connect(this, &QMenu::aboutToShow, this, [this] {
        m_menu.needsUpdate();
        follow();
    });
}

QtMenu::~QtMenu() = default;

void QtMenu::addLines()
{
    for (const auto& item : m_menu.items()) {
        if (item->isSeparator()) {
            addSeparator();
        } else if (item->submenu) {
            m_submenus.push_back(std::make_unique<QtMenu>(*item->submenu));
            addMenu(m_submenus.back().get());
        } else {
            QAction* const action = addAction(item->title);
            action->setMenuRole(QAction::NoRole); // Keeps Qt from moving it because of its title.
            action->setShortcut(shortcut(item->keyEquivalent));
            action->setCheckable(item->isCheckable);
            action->setEnabled(item->isEnabled());
            connect(action, &QAction::triggered, this, [line = item.get()] { line->action(); });
        }
    }
}

void QtMenu::follow()
{
    const QList<QAction*> lines = actions();
    for (std::size_t i = 0; i < m_menu.items().size(); ++i) {
        const MenuItem& item = *m_menu.items()[i];
        QAction& line = *lines[static_cast<qsizetype>(i)];
        line.setText(item.title);
        line.setChecked(item.isChecked);
        line.setEnabled(item.isSeparator() || item.isEnabled());
    }
}

} // namespace Orvello
