#pragma once

#include "Orvello/Shell/Commands/Menu.h"
#include "Orvello/Shell/Commands/ShellWindows.h"
#include "Orvello/Shell/Commands/StatusItem.h"
#include "Tests/Support/Journal.h"

#include <optional>
#include <utility>

namespace Orvello::Testing {

/// Windows that nobody sees. A test finishes the tour by hand.
class FakeShellWindows final : public ShellWindows {
public:
    /// What the windows did, for as long as the test; they themselves come and go.
    struct State {
        Journal* journal = nullptr;
        std::function<void()> finishOnboarding;
        int openOnboardings = 0;
        Menu* statusMenu = nullptr;
        int openedMenus = 0;
        Menu* poppedUp = nullptr;
    };

    explicit FakeShellWindows(State& state)
        : m_state(state)
    {
        note(m_state.journal, "windows made ready");
    }

    std::unique_ptr<ShellWindow> makeLibrary() override { return window("library"); }
    std::unique_ptr<ShellWindow> makeSettings() override { return window("settings"); }
    std::unique_ptr<ShellWindow> makeOnboarding(std::function<void()> onFinish) override
    {
        m_state.finishOnboarding = std::move(onFinish);
        ++m_state.openOnboardings;
        return window("onboarding", &m_state.openOnboardings);
    }
    std::unique_ptr<StatusItem> makeStatusItem(Menu& menu) override
    {
        note(m_state.journal, "status item made");
        m_state.statusMenu = &menu;
        return std::make_unique<Item>(m_state);
    }
    void popUp(Menu& menu) override { m_state.poppedUp = &menu; }

private:
    class Window final : public ShellWindow {
    public:
        Window(State& state, std::string name, int* count)
            : m_state(state)
            , m_name(std::move(name))
            , m_count(count)
        {
            note(m_state.journal, m_name + " window made");
        }
        ~Window() override
        {
            if (m_count)
                --*m_count;
        }
        void bringToFront() override { note(m_state.journal, m_name + " window in front"); }

    private:
        State& m_state;
        const std::string m_name;
        int* const m_count; ///< Counts the windows like this one; may be null.
    };

    class Item final : public StatusItem {
    public:
        explicit Item(State& state)
            : m_state(state)
        {
        }
        void openMenu() override { ++m_state.openedMenus; }

    private:
        State& m_state;
    };

    std::unique_ptr<ShellWindow> window(const char* name, int* count = nullptr)
    {
        return std::make_unique<Window>(m_state, name, count);
    }

    State& m_state;
};

} // namespace Orvello::Testing
