#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"

#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace Orvello {

using namespace Qt::StringLiterals;

ImpressAdviceDialog::ImpressAdviceDialog(ImpressPresenter& impress, QObject* parent)
    : QObject(parent)
    , m_impress(impress)
{
    connect(&impress, &ImpressPresenter::adviceNeeded, this, &ImpressAdviceDialog::advise);
}

ImpressAdviceDialog::~ImpressAdviceDialog() = default;

void ImpressAdviceDialog::advise()
{
    if (m_impress.isChanging())
        return;
    QMessageBox& box = open(tr("Let Orvello follow your Impress presentations?"),
        tr("LibreOffice tells other programs nothing about a presentation until you allow it. "
           "Orvello can do that for you: it changes one setting of LibreOffice, and you can take "
           "it "
           "back at any time."));
    const QPushButton* allow = box.addButton(tr("Allow"), QMessageBox::AcceptRole);
    box.addButton(tr("Not Now"), QMessageBox::RejectRole);
    connect(allow, &QPushButton::clicked, this, &ImpressAdviceDialog::allow);
    box.show();
}

void ImpressAdviceDialog::allow()
{
    m_impress.allow([self = QPointer(this)](const ImpressPresenter::Change& change) {
        if (self)
            self->tell(change.message, change.isDone ? Undo::Offered : Undo::NotOffered);
    });
    tellChanging();
}

void ImpressAdviceDialog::disallow()
{
    m_impress.disallow([self = QPointer(this)](const ImpressPresenter::Change& change) {
        if (self)
            self->tell(change.message, Undo::NotOffered);
    });
    tellChanging();
}

/// The box shown while a change is under way.
void ImpressAdviceDialog::tellChanging()
{
    tell(tr("Orvello is talking to LibreOffice…\n\nThis may take some seconds."), Undo::NotOffered);
}

/// The first paragraph is what matters.
void ImpressAdviceDialog::tell(const QString& message, Undo undo)
{
    QMessageBox& box = open(message.section(u"\n\n"_s, 0, 0), message.section(u"\n\n"_s, 1));
    QPushButton* done = box.addButton(tr("OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(done);
    // A box that cannot be closed would keep the program from quitting.
    box.setEscapeButton(done);
    if (undo == Undo::Offered) {
        const QPushButton* button = box.addButton(tr("Undo"), QMessageBox::ResetRole);
        connect(button, &QPushButton::clicked, this, &ImpressAdviceDialog::disallow);
    }
    box.show();
}

/// Replaces the box by another one, whose text can be copied.
QMessageBox& ImpressAdviceDialog::open(const QString& text, const QString& explanation)
{
    if (m_box)
        m_box.release()->deleteLater(); // It may be the one whose button was clicked.
    m_box = std::make_unique<QMessageBox>(
        QMessageBox::NoIcon, u"Orvello"_s, text, QMessageBox::NoButton);
    m_box->setInformativeText(explanation);
    m_box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_box->setModal(false);
    return *m_box;
}

} // namespace Orvello
