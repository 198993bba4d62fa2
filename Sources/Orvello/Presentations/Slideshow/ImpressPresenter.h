#pragma once

#include "Orvello/Platform/Desktop/HelperProcess.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"

#include <QObject>
#include <QString>

#include <functional>

namespace Orvello {

class PresentationMonitor;

/// LibreOffice Impress, which is asked through a helper program. It answers the helper like the
/// other presenters answer their scripts, but only once the user has set LibreOffice up for that.
class ImpressPresenter final : public QObject {
    Q_OBJECT

public:
    /// How LibreOffice's setting was changed.
    struct Change {
        bool isDone = false;
        QString message; ///< What to tell the user about it.
    };
    using Completion = std::function<void(const Change&)>;

    /// Everything must outlive the presenter.
    ImpressPresenter(
        HelperProcess& helper, const PresentationMonitor& presentation, QObject* parent = nullptr);

    PresenterApp row(); ///< Its row of the presenter table.

    /// Permanently sets LibreOffice up to be asked, in the user's profile; that may mean starting
    /// it. The completion is called on the main loop, unless the presenter is destroyed first.
    void allow(Completion completion);
    /// Undoes allow().
    void disallow(Completion completion);

    /// A change is under way, which may take some seconds.
    bool isChanging() const { return m_isChanging; }

Q_SIGNALS:
    /// LibreOffice refuses to be asked: tell the user how to allow it. Once per run for slideshows,
    /// so that a user who does not want it is left alone, and only after the slideshow, so that
    /// nothing appears before the audience; at once for each import, which the user asked for.
    void adviceNeeded();

private:
    void ask(
        const QString& question, ScriptCompletion completion, void (ImpressPresenter::*refused)());
    void slideRefused();
    void importRefused();
    void adviseAfterSlideshow();
    void change(const QString& question, Completion completion);

    HelperProcess& m_helper;
    const PresentationMonitor& m_presentation;
    bool m_isChanging = false;
    bool m_isAdviceDue = false;
    bool m_hasAdvised = false;
};

} // namespace Orvello
