#pragma once

#include "Orvello/Platform/Desktop/CaptureHiding.h"
#include "Orvello/Platform/Desktop/NativePanel.h"
#include "Tests/Support/Journal.h"

#include <QStringList>

#include <vector>

namespace Orvello::Testing {

/// A panel without a window. It keeps a record of what was asked of it; its state is public to
/// steer.
class FakeNativePanel final : public NativePanel, public CaptureHiding {
public:
    QRectF frame() const override { return frameNow; }
    void setFrame(const QRectF& frame) override
    {
        calls.append(QStringLiteral("setFrame"));
        frameNow = frame;
    }
    void saveFrameAs(const QString& name) override
    {
        calls.append(QStringLiteral("saveFrameAs ") + name);
        if (!savedFrame.isNull())
            frameNow = savedFrame;
    }
    void show() override
    {
        note(journal, "panel shown");
        visible = true;
    }
    void hide() override
    {
        note(journal, "panel hidden");
        visible = false;
    }
    bool isVisible() const override { return visible; }
    qint64 windowNumber() const override { return number; }
    bool isBeingResized() const override { return beingResized; }
    CaptureHiding& captureHiding() override { return *this; }

    Reach reach() const override { return reachNow; }
    bool isHidden() const override { return hidden; }
    void setHidden(bool isHidden) override
    {
        note(journal, isHidden ? "panel hidden from captures" : "panel capturable");
        hidden = isHidden;
        hiddenSet.push_back(isHidden);
    }

    Journal* journal = nullptr;
    QRectF frameNow;
    QRectF savedFrame; ///< What an earlier run saved, if anything.
    bool visible = false;
    qint64 number = 42;
    bool beingResized = false;
    bool hidden = false; ///< Whether captures leave the panel out.
    Reach reachNow = Reach::EveryCapture; ///< Which captures leave a hidden one out.
    QStringList calls;
    std::vector<bool> hiddenSet; ///< Each time it was set.
};

} // namespace Orvello::Testing
