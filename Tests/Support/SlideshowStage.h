#pragma once

#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Tests/Support/FakeMicActivity.h"
#include "Tests/Support/FakePresenter.h"
#include "Tests/Support/FakeWindowServer.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/ManualTimeSource.h"

namespace Orvello::Testing {

/// A desktop with one screen of 1920 × 1080 points, Keynote, PowerPoint, and a presentation monitor
/// that a test starts.
class SlideshowStage {
public:
    SlideshowStage()
    {
        presenters.add(keynote.row());
        presenters.add(powerPoint.row());
    }

    /// The application is frontmost with a window over the whole screen.
    void present(const PresenterApp& app)
    {
        workspace.frontmost = FakeWorkspace::application(app.bundleIdentifier);
        windowServer.windows = { { app.displayName, QRectF(0, 0, 1920, 1080) } };
    }
    void presentKeynote() { present(keynote.row()); }
    void presentPowerPoint() { present(powerPoint.row()); }
    void endSlideshow() { windowServer.windows = QList<WindowOnScreen> {}; }

    ManualTimeSource time;
    FakePresenter keynote { QStringLiteral("Keynote"), QStringLiteral("Keynote"),
        QStringLiteral("com.apple.iWork.Keynote") };
    FakePresenter powerPoint { QStringLiteral("Microsoft PowerPoint"), QStringLiteral("PowerPoint"),
        QStringLiteral("com.microsoft.Powerpoint") };
    PresenterTable presenters;
    FakeWorkspace workspace;
    FakeWindowServer windowServer;
    FakeMicActivity microphone;
    PresentationMonitor monitor { { presenters, workspace, windowServer, microphone, time } };
};

} // namespace Orvello::Testing
