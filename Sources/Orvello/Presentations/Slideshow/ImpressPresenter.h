#pragma once

#include "Orvello/Platform/Desktop/HelperProcess.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"

#include <QObject>
#include <QString>

namespace Orvello {

class PresentationMonitor;
class UserDefaults;

/// LibreOffice Impress, which is asked through a helper program. The helper has LibreOffice listen
/// to it, once the user has agreed, and only while a slideshow is on screen or a deck is being
/// imported: for the rest of the time there is no helper.
class ImpressPresenter final : public QObject {
    Q_OBJECT
    /// Whether the user lets Orvello ask LibreOffice. Stored.
    Q_PROPERTY(bool isAllowed READ isAllowed WRITE setAllowed NOTIFY isAllowedChanged FINAL)
    /// Why LibreOffice could not be asked all the same, for the user; empty while it could.
    Q_PROPERTY(QString obstacle READ obstacle NOTIFY obstacleChanged FINAL)

public:
    /// Everything must outlive the presenter.
    ImpressPresenter(HelperProcess& helper, const PresentationMonitor& presentation,
        UserDefaults& defaults, QObject* parent = nullptr);

    PresenterApp row(); ///< Its row of the presenter table.

    bool isAllowed() const { return m_isAllowed; }
    void setAllowed(bool isAllowed);
    const QString& obstacle() const { return m_obstacle; }

    /// Whether a slideshow is on a screen, so that nothing may appear before its audience.
    bool hasAudience() const;

Q_SIGNALS:
    void isAllowedChanged();
    void obstacleChanged();
    void audienceChanged();

    /// LibreOffice was not asked, for want of the user's consent, or could not be: tell the user.
    /// Once per run for slideshows, so that a user who does not want it is left alone; for each
    /// import, which the user asked for. Never before an audience.
    void adviceNeeded();

private:
    enum class Purpose { Slide, Presented, Deck };

    void ask(Purpose purpose, ScriptCompletion completion);
    void open(Purpose purpose, ScriptCompletion completion);
    void askOpened(Purpose purpose, ScriptCompletion completion);
    void conclude(Purpose purpose, const ScriptResult& result, const ScriptCompletion& completion);
    void setObstacle(const QString& obstacle);
    void refused(Purpose purpose);
    void advise();
    void closeWhenIdle();

    HelperProcess& m_helper;
    const PresentationMonitor& m_presentation;
    UserDefaults& m_defaults;
    bool m_isAllowed = false;
    QString m_obstacle;
    bool m_isOpen = false; ///< LibreOffice listens.
    int m_questions = 0; ///< How many are open.
    bool m_isAdviceDue = false;
    bool m_hasAdvised = false;
};

} // namespace Orvello
