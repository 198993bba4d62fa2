#pragma once

#include "Orvello/Platform/Desktop/NativePanel.h"
#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Prompting/Panel/CaptureExclusion.h"
#include "Orvello/Prompting/Panel/StealthLog.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace Orvello {

class CaptureHiding;
class Folders;
class PresentationMonitor;
class Screens;
class ScrollEngine;
class SettingsStore;

/// Places the prompter panel and keeps it out of captures while Stealth Mode is on. Two independent
/// mechanisms hide the panel: the window system's own and a capture-exclude shape. The window
/// server can silently drop either (the window gets a new number, or outgrows the shape), so the
/// controller remembers what it applied and repairs it: after every resize, after a call ends, and
/// from a watchdog. The panel is built but not shown: showing it is the shell's business.
class PrompterPanelController final : public QObject {
    Q_OBJECT

public:
    /// All of them must outlive the controller.
    struct Services {
        NativePanel& panel;
        ScrollEngine& engine;
        SettingsStore& settings;
        PresentationMonitor& presentation;
        TimeSource& time;
        const Screens& screens;
        const Folders& folders;
    };

    /// With `forceCapturable` Stealth Mode never takes effect.
    PrompterPanelController(const Services& services, bool forceCapturable,
        const CaptureExclusion& captureExclusion = CaptureExclusion());
    ~PrompterPanelController() override;

    NativePanel& panel() { return m_panel; }

    /// Moves the panel, as large as it is, to the top of the screen that the pointer is on.
    void putUnderCamera();

    /// Whether Stealth Mode is in effect: wanted, and not forced off.
    bool stealthOn() const { return m_stealthOn; }

    /// Whether Stealth Mode is wanted and nothing keeps the panel out of captures: no platform's
    /// means, nor the exclude shape where captures may ignore those. The user must be told.
    bool isVisibleInRecordings() const { return m_isVisibleInRecordings; }

    /// Hides the panel from captures, or makes it an ordinary window again.
    void applyStealthMode(bool on);

    /// Applies Stealth Mode again after the panel was brought to the front.
    void reassertStealth();

    /// Covers a resized panel again, or leaves that until the call ends.
    void reapplyShapeOrPostpone();

Q_SIGNALS:
    void visibleInRecordingsChanged();

private:
    void placePanel();
    void watchResizes();
    void callChanged(bool inCall);
    void checkWindow();
    void coverCurrentFrame();
    void publishVisibility();
    bool hideFromCaptures(bool isHidden, qint64 windowNumber);
    bool applyShape(bool on, const QString& mode);

    NativePanel& m_panel;
    CaptureHiding& m_hiding;
    const Screens& m_screens;
    PresentationMonitor& m_presentation;
    TimeSource& m_time;
    StealthLog m_stealthLog;
    const CaptureExclusion m_captureExclusion;
    const bool m_forceCapturable;
    bool m_stealthOn = false;
    bool m_wantsStealth = false;
    bool m_isShapeApplied = false;
    bool m_isVisibleInRecordings = false;
    bool m_pendingShapeReapply = false; ///< A shape was left as it was because of a call.
    qint64 m_appliedWid = -1; ///< Window number at the last application.
    std::optional<bool> m_appliedHidden;
    std::unique_ptr<TimeSource::Ticket> m_stealthWatchdog;
    /// One for each request; few, because a window has its number soon.
    std::vector<std::unique_ptr<TimeSource::Ticket>> m_delayedReassertions;
};

} // namespace Orvello
