#pragma once

#include "Orvello/Adapters/Portable/OpenedUrls.h"
#include "Orvello/Adapters/Portable/SocketInstance.h"

#include <optional>

#import <Foundation/Foundation.h>

@class ReopenListener;

namespace Orvello {

/// The system starts a bundle once, and tells the one that runs what else is asked of it. What the
/// system takes for another program, the socket tells: `open -n`, a copy on a disk image, and the
/// program inside a bundle that is started by itself.
class MacInstance final : public RunningInstance {
public:
    explicit MacInstance(const QString& folder); ///< For the socket.
    ~MacInstance() override;

    Outcome claim(const ProgramStart& start) override { return m_socket.claim(start); }
    void listen(Handlers handlers) override;
    void release() override { m_socket.release(); }

private:
    SocketInstance m_socket;
    std::optional<OpenedUrls> m_openedUrls;
    ReopenListener* m_reopenListener = nil;
};

} // namespace Orvello
