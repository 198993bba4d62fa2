#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"

#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"

#include <QMessageBox>
#include <QPushButton>

namespace Orvello {

using namespace Qt::StringLiterals;

ImpressAdviceDialog::ImpressAdviceDialog(ImpressPresenter& impress, QObject* parent)
    : QObject(parent)
    , m_impress(impress)
{
    connect(&impress, &ImpressPresenter::adviceNeeded, this, &ImpressAdviceDialog::advise);
    connect(&impress, &ImpressPresenter::audienceChanged, this,
        &ImpressAdviceDialog::hideBeforeAudience);
}

ImpressAdviceDialog::~ImpressAdviceDialog() = default;

QString ImpressAdviceDialog::consentText()
{
    return tr("While an Impress slideshow runs, and while you import an open presentation, Orvello "
              "has LibreOffice listen on a connection that gives control of all of LibreOffice, "
              "and uses it to read slide numbers, titles and notes. Only programs of your user "
              "account could reach it, Orvello takes its name away as soon as it is connected, and "
              "the connection ends with the slideshow or the import.");
}

void ImpressAdviceDialog::advise()
{
    if (m_impress.isAllowed())
        tell(m_impress.obstacle());
    else
        askConsent();
}

void ImpressAdviceDialog::askConsent()
{
    QMessageBox& box = open(tr("Let Orvello follow your Impress presentations?"), consentText());
    const QPushButton* allow = box.addButton(tr("Allow"), QMessageBox::AcceptRole);
    box.addButton(tr("Not Now"), QMessageBox::RejectRole);
    connect(allow, &QPushButton::clicked, this, [this] {
        m_impress.setAllowed(true);
        tell(tr("Orvello may now follow Impress. Start the slideshow or the import again.\n\nThe "
                "settings have a button that takes this back."));
    });
    box.show();
}

/// The first paragraph is what matters.
void ImpressAdviceDialog::tell(const QString& message)
{
    QMessageBox& box = open(message.section(u"\n\n"_s, 0, 0), message.section(u"\n\n"_s, 1));
    QPushButton* done = box.addButton(tr("OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(done);
    // A box that cannot be closed would keep the program from quitting.
    box.setEscapeButton(done);
    box.show();
}

/// A box that was still open when the slideshow began comes back after it.
void ImpressAdviceDialog::hideBeforeAudience()
{
    if (m_impress.hasAudience() && m_box && m_box->isVisible()) {
        m_isHeldBack = true;
        m_box->hide();
    } else if (!m_impress.hasAudience() && m_isHeldBack && m_box) {
        m_isHeldBack = false;
        m_box->show();
    }
}

/// Replaces the box by another one, whose text can be copied.
QMessageBox& ImpressAdviceDialog::open(const QString& text, const QString& explanation)
{
    m_isHeldBack = false;
    if (m_box) {
        m_box->hide();
        m_box.release()->deleteLater(); // It may be the one whose button was clicked.
    }
    m_box = std::make_unique<QMessageBox>(
        QMessageBox::NoIcon, u"Orvello"_s, text, QMessageBox::NoButton);
    m_box->setInformativeText(explanation);
    m_box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_box->setModal(false);
    return *m_box;
}

} // namespace Orvello
