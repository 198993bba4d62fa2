#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
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

/// One of the changes that a combined subscription listens to.
template <typename Source, typename Signal>
struct Change {
    Source& source;
    Signal signal;
};
template <typename Source, typename Signal>
Change<Source, Signal> changeOf(Source& source, Signal signal)
{
    return { source, signal };
}

/// Subscribes `handler` to a value that is computed from several published ones: it receives the
/// present value, and then a new one each time one of the changes makes it differ. Otherwise as
/// above.
template <typename Compute, typename Handler, typename... Sources, typename... Signals>
void observeCombined(
    QObject& context, Compute compute, Handler handler, Change<Sources, Signals>... changes)
{
    using Value = std::invoke_result_t<Compute>;
    const auto last = std::make_shared<std::optional<Value>>();
    const auto deliver = [&context, compute, handler, last] {
        Value value = compute();
        if (*last == value)
            return;
        *last = value;
        QMetaObject::invokeMethod(
            &context, [handler, value = std::move(value)] { handler(value); },
            Qt::QueuedConnection);
    };
    (QObject::connect(&changes.source, changes.signal, &context, deliver), ...);
    deliver();
}

} // namespace Orvello
