#pragma once

#include "Orvello/Platform/Desktop/NativePanel.h"
#include "Tests/Support/Journal.h"

#include <QStringList>

#include <vector>

namespace Orvello::Testing {

/// A panel without a window. It keeps a record of what was asked of it; its state is public to
/// steer.
class FakeNativePanel final : public NativePanel {
public:
    QRectF frame() const override { return frameNow; }
    void setFrame(const QRectF& frame) override
    {
        calls.append(QStringLiteral("setFrame"));
        frameNow = frame;
    }
    void setFrameAutosaveName(const QString& name) override
    {
        calls.append(QStringLiteral("setFrameAutosaveName ") + name);
        if (!savedFrame.isNull())
            frameNow = savedFrame;
    }
    void orderFrontRegardless() override
    {
        note(journal, "panel ordered front");
        visible = true;
    }
    void orderOut() override
    {
        note(journal, "panel ordered out");
        visible = false;
    }
    bool isVisible() const override { return visible; }
    qint64 windowNumber() const override { return number; }
    bool inLiveResize() const override { return liveResize; }
    SharingType sharingType() const override { return sharing; }
    void setSharingType(SharingType type) override
    {
        note(
            journal, type == SharingType::None ? "panel hidden from captures" : "panel capturable");
        sharing = type;
        sharingTypesSet.push_back(type);
    }
    bool canExcludeFromCapture() const override { return canExclude; }

    Journal* journal = nullptr;
    QRectF frameNow;
    QRectF savedFrame; ///< What an earlier run saved, if anything.
    bool visible = false;
    qint64 number = 42;
    bool liveResize = false;
    SharingType sharing = SharingType::ReadOnly;
    bool canExclude = true;
    QStringList calls;
    std::vector<SharingType> sharingTypesSet;
};

} // namespace Orvello::Testing
