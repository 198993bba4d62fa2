#pragma once

#include <memory>

class QQuickView;
class QWindow;

namespace Orvello {

class LibraryStore;
class ScrollEngine;
class SettingsStore;

/// The window content of the prompter panel: the prompter's view over the services that it shows.
/// What kind of window it is, is the native panel's business.
class PrompterWindow final {
public:
    struct Services {
        ScrollEngine& engine;
        SettingsStore& settings;
        LibraryStore& library;
        bool forceCapturable;
    };

    explicit PrompterWindow(const Services& services); ///< The services must outlive the window.
    ~PrompterWindow();

    QWindow& window();

private:
    std::unique_ptr<QQuickView> m_view;
};

} // namespace Orvello
