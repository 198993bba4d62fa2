#pragma once

#include "Orvello/Platform/HelperProcess.h"
#include "Orvello/Presentations/PresenterApp.h"
#include "Orvello/Presentations/SlideSyncService.h"

#include <QObject>
#include <QString>

#include <functional>

namespace Orvello {

/// LibreOffice Impress, which is asked through a helper program. It answers the helper like the
/// other presenters answer their scripts.
namespace ImpressPresenter {

/// `helper` must outlive the row.
[[nodiscard]] PresenterApp row(HelperProcess& helper);

/// The command that lets LibreOffice be asked, as a menu shows it.
[[nodiscard]] QString allowTitle();
/// The command that takes that back.
[[nodiscard]] QString disallowTitle();

} // namespace ImpressPresenter

/// Lets LibreOffice be asked, at the user's command: it listens only after that is set in its
/// profile.
class ImpressAccess final : public QObject {
    Q_OBJECT

public:
    /// What to tell the user about how it went.
    using Completion = std::function<void(const QString& message)>;

    /// Everything must outlive the object.
    ImpressAccess(const SlideSyncService& sync, HelperProcess& helper, QObject* parent = nullptr);

    void allow(Completion completion);
    void disallow(Completion completion);

Q_SIGNALS:
    /// LibreOffice refused to be asked about its slideshow. Once per run, so that a user who does
    /// not want it is left alone.
    void adviceNeeded(const QString& advice);

private:
    void adviseOnce();
    void change(const QString& question, Completion completion);

    const SlideSyncService& m_sync;
    HelperProcess& m_helper;
    bool m_hasAdvised = false;
};

} // namespace Orvello
