#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QMessageBox;

namespace Orvello {

class ImpressPresenter;

/// Asks the user to let Orvello follow Impress when that was wanted, or says why it is not
/// possible. One box at a time, none is modal, and none stands before an audience.
class ImpressAdviceDialog final : public QObject {
    Q_OBJECT

public:
    /// `impress` must outlive it.
    explicit ImpressAdviceDialog(ImpressPresenter& impress, QObject* parent = nullptr);
    ~ImpressAdviceDialog() override;

    /// What the user agrees to: what is opened, for whom and until when.
    static QString consentText();

private:
    void advise();
    void askConsent();
    void tell(const QString& message);
    void hideBeforeAudience();
    QMessageBox& open(const QString& text, const QString& explanation);

    ImpressPresenter& m_impress;
    std::unique_ptr<QMessageBox> m_box; ///< The latest one, or none.
    bool m_isHeldBack = false; ///< The box waits for the audience to go.
};

} // namespace Orvello
