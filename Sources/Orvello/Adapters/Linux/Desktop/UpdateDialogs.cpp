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
    dialog->setTextFormat(Qt::PlainText); // The feed has a part in it.
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
    m_permission = makeDialog(u"Check for updates automatically?"_s,
        u"Once a day, Orvello would look at the vendor's web site for a newer version. Nothing "
        u"about you is sent. You can change this in the settings at any time."_s);
    const auto* const yes
        = m_permission->addButton(u"Check Automatically"_s, QMessageBox::AcceptRole);
    m_permission->setEscapeButton(
        m_permission->addButton(u"Don’t Check"_s, QMessageBox::RejectRole));
    QObject::connect(m_permission, &QMessageBox::finished, m_permission,
        [dialog = m_permission.get(), yes, answer = std::move(answer)] {
            answer(dialog->clickedButton() == yes);
        });
    m_permission->show();
}

void UpdateDialogs::showUpdate(const UpdateItem& item, std::function<void(UpdateChoice)> answer)
{
    delete m_dialog;
    m_dialog = makeDialog(u"Orvello %1 is available."_s.arg(item.displayVersion),
        u"You have %1. The new version is on its download page, which Install opens in your "
        u"browser."_s.arg(m_currentVersion));
    const auto* const install = m_dialog->addButton(u"Install…"_s, QMessageBox::AcceptRole);
    const auto* const skip
        = m_dialog->addButton(u"Skip This Version"_s, QMessageBox::DestructiveRole);
    m_dialog->setEscapeButton(m_dialog->addButton(u"Later"_s, QMessageBox::RejectRole));
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
    m_dialog = makeDialog(text, u"You have %1."_s.arg(m_currentVersion));
    m_dialog->addButton(QMessageBox::Ok);
    m_dialog->show();
    bringToFront();
}

} // namespace Orvello
