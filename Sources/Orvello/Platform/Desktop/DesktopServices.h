#pragma once

#include <QString>
#include <QUrl>

namespace Orvello {

/// The desktop that the program runs on. Main thread. Nothing here fails visibly.
class DesktopServices {
public:
    virtual ~DesktopServices() = default;

    /// Makes this program the active one, whatever is active now.
    virtual void activateApplication() = 0;

    /// Opens an address with the user's program for it. False when there is none.
    virtual bool open(const QUrl& url) = 0;

    /// Shows a file in the file manager, selected.
    virtual void reveal(const QString& path) = 0;
};

} // namespace Orvello
