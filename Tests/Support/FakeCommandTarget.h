#pragma once

#include "Orvello/Shell/Commands/Command.h"

#include <QStringList>

namespace Orvello::Testing {

/// A program that notes what it is told, in the words of the port.
class FakeCommandTarget final : public CommandTarget {
public:
    void toggleScroll() override { note("toggleScroll"); }
    void speedUp() override { note("speedUp"); }
    void slowDown() override { note("slowDown"); }
    void backToTop() override { note("backToTop"); }
    void togglePanel() override { note("togglePanel"); }
    void putUnderCamera() override { note("putUnderCamera"); }
    void toggleVoice() override { note("toggleVoice"); }
    void toggleSlideTracking() override { note("toggleSlideTracking"); }
    void toggleStealth() override { note("toggleStealth"); }
    void openLibrary() override { note("openLibrary"); }
    void openSettings() override { note("openSettings"); }
    void openTour() override { note("openTour"); }
    void checkForUpdates() override { note("checkForUpdates"); }
    void contactSupport() override { note("contactSupport"); }
    void revealLogs() override { note("revealLogs"); }
    void terminate() override { note("terminate"); }

    bool isScrolling() const override { return scrolls; }
    bool isPanelVisible() const override { return showsPanel; }
    bool isVoiceOn() const override { return followsVoice; }
    bool isSlideTrackingOn() const override { return followsSlides; }
    bool isStealthOn() const override { return isHidden; }
    bool hasSupportAddress() const override { return isSupported; }

    QStringList calls;
    bool scrolls = false;
    bool showsPanel = false;
    bool followsVoice = false;
    bool followsSlides = false;
    bool isHidden = false;
    bool isSupported = true;

private:
    void note(const char* call) { calls.append(QString::fromLatin1(call)); }
};

} // namespace Orvello::Testing
