#pragma once

#include "Orvello/Shell/App/AppDelegate.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakePlatform.h"
#include "Tests/Support/FakeShellWindows.h"
#include "Tests/Support/LogCapture.h"

#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickView>

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

namespace Orvello {

/// The whole program over fakes. A test constructs it, and launches it when it likes.
class AppDelegateFixture : public ::testing::Test {
protected:
    AppDelegateFixture()
    {
        platform.userDefaultsFake.stored.insert(QStringLiteral("onboardingSeenVersion"), 1);
        windows.journal = &platform.journal;
        Testing::LogCapture::noteIn(&platform.journal);
    }
    ~AppDelegateFixture() override { Testing::LogCapture::noteIn(nullptr); }

    void construct(const QStringList& arguments = {}, AppDelegate::ReadDecks decks = {})
    {
        delegate = std::make_unique<AppDelegate>(
            AppDelegate::Platforms { platform, platform, platform, CaptureExclusion(findCall) },
            [this](const ShellWindows::Services& services) {
                m_settings = &services.settings;
                m_library = &services.library;
                return std::make_unique<Testing::FakeShellWindows>(windows);
            },
            LaunchOptions::of(LaunchOptions::thisStart(arguments)), std::move(decks));
        platform.journal.clear();
    }

    void launch(const QStringList& arguments = {})
    {
        construct(arguments);
        delegate->applicationDidFinishLaunching();
    }

    /// Launches, and lets every subscription deliver what holds at first.
    void launchAndSettle(const QStringList& arguments = {})
    {
        launch(arguments);
        Testing::drainEvents();
    }

    void presentKeynote()
    {
        platform.workspaceFake.frontmost
            = Testing::FakeWorkspace::application(QStringLiteral("com.apple.iWork.Keynote"));
        platform.windowServerFake.windows
            = { { QStringLiteral("Keynote"), QRectF(0, 0, 1920, 1080) } };
        nextPoll();
    }
    void endSlideshow()
    {
        platform.windowServerFake.windows = QList<WindowOnScreen> {};
        nextPoll();
    }
    void nextPoll()
    {
        platform.manualTime.advance(1.0);
        Testing::drainEvents();
    }

    /// The delegate's own, once launched.
    SettingsStore& settings() const { return *m_settings; }
    LibraryStore& library() const { return *m_library; }

    /// The engine that moves the prompter's text: the view is told which.
    ScrollEngine& engine() const
    {
        const auto& view = static_cast<const QQuickView&>(*platform.panelView);
        return *view.rootObject()->property("engine").value<ScrollEngine*>();
    }

    /// The title of a line of the status menu as it opens now.
    QString titleOfLine(std::size_t number) const
    {
        windows.statusMenu->needsUpdate();
        return windows.statusMenu->items().at(number - 1)->title;
    }
    void choose(std::size_t line) const { windows.statusMenu->items().at(line - 1)->action(); }

    /// Whether the plain P key is registered now.
    bool isPlainPArmed() const
    {
        return std::ranges::any_of(platform.hotKeysFake.registered,
            [](const auto& entry) { return entry.second.modifiers == 0; });
    }

    /// How often a line was logged.
    std::ptrdiff_t logged(std::string_view line) const
    {
        const std::vector<std::string> lines = log.lines();
        return std::ranges::count(lines, line);
    }

    Testing::LogCapture log;
    Testing::FakePlatform platform;
    /// The window server's private calls: none, although this process may have them.
    CaptureExclusion::LookUp findCall = [](const char*) -> void* { return nullptr; };
    Testing::FakeShellWindows::State windows;
    std::unique_ptr<AppDelegate> delegate;

private:
    SettingsStore* m_settings = nullptr;
    LibraryStore* m_library = nullptr;
};

} // namespace Orvello
