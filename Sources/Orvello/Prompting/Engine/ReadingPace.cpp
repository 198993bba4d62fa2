#include "Orvello/Prompting/Engine/ReadingPace.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"

#include <algorithm>
#include <cmath>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

// In points per second. Speech needs less than the speed's slider offers: a line that is full of
// words passes too fast at its lower end.
constexpr double slowest = 2;
constexpr double fastest = 240;

/// How long a layout has to rest before the speed follows it: it grows in slices.
constexpr double settling = 0.3;

} // namespace

ReadingPace::ReadingPace(
    SettingsStore& settings, ScrollEngine& engine, TimeSource& time, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_engine(engine)
    , m_time(time)
{
    connect(&settings, &SettingsStore::speedChanged, this, &ReadingPace::onSpeedChanged);
    connect(&settings, &SettingsStore::keptPaceChanged, this, &ReadingPace::keptChanged);
    connect(&engine, &ScrollEngine::endOffsetChanged, this, &ReadingPace::onTextChanged);
}

ReadingPace::~ReadingPace() = default;

void ReadingPace::setText(const QString& text)
{
    m_text = text;
    m_length.reset();
    onTextChanged();
}

const SpokenLength& ReadingPace::length() const
{
    // More than that is only estimated, so that nothing waits for a count.
    constexpr qsizetype sample = 100'000;
    if (m_length)
        return *m_length;
    m_length = SpokenLength::of(QStringView(m_text).left(sample));
    if (m_text.size() > sample) {
        m_length->words = m_length->words * m_text.size() / sample;
        m_length->characters = m_length->characters * m_text.size() / sample;
    }
    return *m_length;
}

double ReadingPace::unitsPerMinute() const
{
    const double way = m_engine.endOffset();
    return way > 0 ? static_cast<double>(length().units()) * 60 * m_settings.speed() / way : 0;
}

void ReadingPace::setUnitsPerMinute(double pace)
{
    if (length().units() == 0 || m_engine.endOffset() <= 0 || !(pace > 0))
        return;
    const double speed = pace * m_engine.endOffset() / (60 * static_cast<double>(length().units()));
    m_settings.setSpeed(std::clamp(speed, slowest, fastest));
}

QString ReadingPace::description() const
{
    const double pace = unitsPerMinute();
    if (pace <= 0)
        return tr("The prompter has no text to scroll.");
    const int rounded = static_cast<int>(std::lround(std::min(pace, 9999.0)));
    const bool isByCharacters = length().isByCharacters();
    const QString speed = QString::number(std::lround(m_settings.speed()));
    const QString meaning = isByCharacters
        //: %1: points per second. About the script that the prompter shows.
        ? tr("%1 pt/s · about %n characters a minute in this script", nullptr, rounded).arg(speed)
        //: %1: points per second. About the script that the prompter shows.
        : tr("%1 pt/s · about %n words a minute in this script", nullptr, rounded).arg(speed);
    if (pace <= (isByCharacters ? fastestCharacters : fastestSpeech))
        return meaning;
    //: %1: as in "25 pt/s · about 250 words a minute in this script".
    return tr("%1: faster than speech").arg(meaning);
}

bool ReadingPace::isKept() const { return m_settings.keptPace() > 0; }

void ReadingPace::setKept(bool isKept)
{
    m_restore.reset();
    m_settings.setKeptPace(isKept ? unitsPerMinute() : 0);
}

void ReadingPace::onSpeedChanged()
{
    if (isKept() && !m_isRestoring && unitsPerMinute() > 0) {
        m_restore.reset();
        m_settings.setKeptPace(unitsPerMinute());
    }
    Q_EMIT changed();
}

void ReadingPace::onTextChanged()
{
    if (isKept())
        m_restore = m_time.callAfter(settling, [this] { restore(); });
    Q_EMIT changed();
}

void ReadingPace::restore()
{
    m_restore.reset();
    m_isRestoring = true;
    setUnitsPerMinute(m_settings.keptPace());
    m_isRestoring = false;
}

} // namespace Orvello
