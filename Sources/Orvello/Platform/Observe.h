#pragma once

#include <QObject>

#include <functional>
#include <utility>

namespace Orvello {

/// Subscribes `handler` to a published value: it receives the current value once, then the value of
/// every change, in order. Each delivery goes through the main event loop and carries the value as
/// it was when it changed. The subscription ends with `context`.
///
///     observe(settings, &SettingsStore::voiceFollow, &SettingsStore::voiceFollowChanged, *this,
///             [this](bool follow) { … });
template <typename Source, typename Getter, typename Signal, typename Handler>
void observe(Source& source, Getter getter, Signal changed, QObject& context, Handler handler)
{
    const auto deliver = [&source, getter, &context, handler = std::move(handler)] {
        auto value = std::invoke(getter, source);
        QMetaObject::invokeMethod(
            &context, [handler, value = std::move(value)] { handler(value); },
            Qt::QueuedConnection);
    };
    QObject::connect(&source, changed, &context, deliver);
    deliver();
}

} // namespace Orvello
