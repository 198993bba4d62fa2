#pragma once

#include "Orvello/Platform/Early/TimeSource.h"

#include <QObject>
#include <QString>

#include <memory>

namespace Orvello {

class ScrollEngine;
class SettingsStore;

/// The times that the card shows: how long the reader has been reading, and how long the rest
/// takes. Main thread.
class ReadingClock final : public QObject {
    Q_OBJECT
    /// As the settings want it, in the user's language; empty for none.
    Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)

public:
    /// All must outlive it.
    ReadingClock(const SettingsStore& settings, const ScrollEngine& engine, TimeSource& time,
        QObject* parent = nullptr);
    ~ReadingClock() override;

    const QString& text() const { return m_text; }

    /// Seconds since the text began to scroll from its top. Holds count, pauses do not.
    double elapsed() const { return m_elapsed; }

    /// Seconds until the text's end at its speed; with Voice-Follow, at the share of the time that
    /// the reader has been speaking so far.
    double left() const;

Q_SIGNALS:
    void textChanged();

private:
    void onRunningChanged();
    void measure();
    void update();
    QString textNow() const;

    const SettingsStore& m_settings;
    const ScrollEngine& m_engine;
    TimeSource& m_time;
    QString m_text;
    double m_elapsed = 0;
    double m_moving = 0; ///< What of it the text moved.
    double m_measured = 0; ///< The moment up to which both are known.
    std::unique_ptr<TimeSource::Ticket> m_ticks; ///< While the text scrolls or is held.
};

} // namespace Orvello
