#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QMessageBox;

namespace Orvello {

class ImpressPresenter;

/// Offers to set LibreOffice up when it refuses to be asked about its presentation, says how that
/// went, and takes it back at once if the user wants. One box at a time, and none is modal.
class ImpressAdviceDialog final : public QObject {
    Q_OBJECT

public:
    /// `impress` must outlive it.
    explicit ImpressAdviceDialog(ImpressPresenter& impress, QObject* parent = nullptr);
    ~ImpressAdviceDialog() override;

private:
    enum class Undo { Offered, NotOffered };

    void advise();
    void allow();
    void disallow();
    void tellChanging();
    void tell(const QString& message, Undo undo);
    QMessageBox& open(const QString& text, const QString& explanation);

    ImpressPresenter& m_impress;
    std::unique_ptr<QMessageBox> m_box; ///< The latest one, or none.
};

} // namespace Orvello
