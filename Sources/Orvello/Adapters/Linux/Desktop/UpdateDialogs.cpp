#include "Orvello/Adapters/Linux/Desktop/UpdateDialogs.h"

#include <QGuiApplication>
#include <QPushButton>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

QMessageBox* makeDialog(const QString& text, const QString& details)
{
    auto* const dialog = new QMessageBox(QMessageBox::NoIcon, u"Orvello"_s, text);
    constexpr int iconSide = 64;
    dialog->setIconPixmap(QGuiApplication::windowIcon().pixmap(iconSide));
    dialog->setInformativeText(details);
    dialog->setTextFormat(Qt::PlainText); // Part of it comes from the feed.
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAttribute(Qt::WA_ShowWithoutActivating);
    dialog->setModal(false);
    return dialog;
}

} // namespace

UpdateDialogs::UpdateDialogs(QString currentVersion)
    : m_currentVersion(std::move(currentVersion))
{
}

UpdateDialogs::~UpdateDialogs()
{
    delete m_permission;
    delete m_dialog;
}

void UpdateDialogs::askPermission(std::function<void(bool)> answer)
{
    m_permission = makeDialog(tr("Check for updates automatically?"),
        tr("Once a day, Orvello would look at the vendor's web site for a newer version. Nothing "
           "about you is sent. You can change this in the settings at any time."));
    const auto* const yes
        = m_permission->addButton(tr("Check Automatically"), QMessageBox::AcceptRole);
    m_permission->setEscapeButton(
        m_permission->addButton(tr("Don’t Check"), QMessageBox::RejectRole));
    QObject::connect(m_permission, &QMessageBox::finished, m_permission,
        [dialog = m_permission.get(), yes, answer = std::move(answer)] {
            answer(dialog->clickedButton() == yes);
        });
    m_permission->show();
}

void UpdateDialogs::showUpdate(const UpdateItem& item, std::function<void(UpdateChoice)> answer)
{
    delete m_dialog;
    //: %1: the version, such as 2.1.
    m_dialog = makeDialog(tr("Orvello %1 is available.").arg(item.displayVersion),
        //: %1: the version. Install is the button's name.
        tr("You have %1. The new version is on its download page, which Install opens in your "
           "browser.")
            .arg(m_currentVersion));
    const auto* const install = m_dialog->addButton(tr("Install…"), QMessageBox::AcceptRole);
    const auto* const skip
        = m_dialog->addButton(tr("Skip This Version"), QMessageBox::DestructiveRole);
    m_dialog->setEscapeButton(m_dialog->addButton(tr("Later"), QMessageBox::RejectRole));
    QObject::connect(m_dialog, &QMessageBox::finished, m_dialog,
        [dialog = m_dialog.get(), install, skip, answer = std::move(answer)] {
            const auto* const clicked = dialog->clickedButton();
            answer(clicked == install ? UpdateChoice::Install
                    : clicked == skip ? UpdateChoice::Skip
                                      : UpdateChoice::Later);
        });
    m_dialog->show();
}

void UpdateDialogs::bringToFront()
{
    if (!m_dialog)
        return;
    m_dialog->raise();
    m_dialog->activateWindow();
}

void UpdateDialogs::showOutcome(const QString& text)
{
    delete m_dialog;
    m_dialog = makeDialog(text, tr("You have %1.").arg(m_currentVersion));
    m_dialog->addButton(QMessageBox::Ok);
    m_dialog->show();
    bringToFront();
}

} // namespace Orvello
