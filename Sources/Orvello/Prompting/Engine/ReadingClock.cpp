#include "Orvello/Prompting/Engine/ReadingClock.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// How often it looks, in seconds: fine enough for the share of the time that the reader speaks.
constexpr double interval = 0.25;

/// Until the reader has been reading for so long, in seconds, that share is not known.
constexpr double shortestSample = 10;

/// As in "1:05", or "1:02:05".
QString duration(double seconds)
{
    const auto whole = static_cast<qint64>(std::lround(std::clamp(seconds, 0.0, 1e6)));
    const auto twoDigits = [](qint64 number) { return u"%1"_s.arg(number, 2, 10, QChar(u'0')); };
    const QString minutesAndSeconds = u':' + twoDigits(whole % 60);
    if (whole < 3600)
        return QString::number(whole / 60) + minutesAndSeconds;
    return QString::number(whole / 3600) + u':' + twoDigits(whole / 60 % 60) + minutesAndSeconds;
}

} // namespace

ReadingClock::ReadingClock(
    const SettingsStore& settings, const ScrollEngine& engine, TimeSource& time, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_engine(engine)
    , m_time(time)
{
    connect(&engine, &ScrollEngine::isRunningChanged, this, &ReadingClock::onRunningChanged);
    for (const auto signal : { &ScrollEngine::offsetChanged, &ScrollEngine::endOffsetChanged })
        connect(&engine, signal, this, &ReadingClock::update);
    for (const auto signal : { &SettingsStore::speedChanged, &SettingsStore::cardTimeChanged })
        connect(&settings, signal, this, &ReadingClock::update);
    update();
}

ReadingClock::~ReadingClock() = default;

void ReadingClock::onRunningChanged()
{
    if (!m_engine.isRunning()) {
        measure();
        m_ticks.reset();
        return;
    }
    if (m_engine.isAtTop())
        m_elapsed = m_moving = 0;
    m_measured = m_time.now();
    m_ticks = m_time.callEvery(interval, [this] { measure(); });
    update();
}

void ReadingClock::measure()
{
    const double now = m_time.now();
    const double passed = now - std::exchange(m_measured, now);
    m_elapsed += passed;
    if (m_engine.isMoving())
        m_moving += passed;
    update();
}

double ReadingClock::left() const
{
    const double way = std::max(m_engine.endOffset() - m_engine.offset(), 0.0);
    const double seconds = m_engine.speed() > 0 ? way / m_engine.speed() : 0;
    const bool isShareKnown = m_elapsed >= shortestSample && m_moving > 0;
    return m_engine.voiceFollowActive() && isShareKnown ? seconds * m_elapsed / m_moving : seconds;
}

void ReadingClock::update()
{
    if (assign(m_text, textNow()))
        Q_EMIT textChanged();
}

QString ReadingClock::textNow() const
{
    const QString& shown = m_settings.cardTime();
    if (shown == u"elapsed"_s)
        return duration(m_elapsed);
    if (shown == u"left"_s)
        //: On the card, at most about 15 characters. %1: minutes and seconds, as in "3:12".
        return tr("%1 left").arg(duration(left()));
    if (shown == u"both"_s)
        //: On the card, at most about 25 characters. %1: how long the reader has been reading; %2:
        //: how long the rest takes, both as in "3:12".
        return tr("%1 · %2 left").arg(duration(m_elapsed), duration(left()));
    return {};
}

} // namespace Orvello
