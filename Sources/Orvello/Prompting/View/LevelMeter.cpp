#include "Orvello/Prompting/View/LevelMeter.h"

#include "Orvello/Prompting/View/SignalColors.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <utility>

namespace Orvello {

LevelMeter::LevelMeter(const VoiceActivityEngine& voice, QObject* parent)
    : QObject(parent)
    , m_litBars(litBarsAt(voice.level()))
{
    connect(&voice, &VoiceActivityEngine::levelChanged, this, [this, &voice] {
        const int lit = litBarsAt(voice.level());
        if (std::exchange(m_litBars, lit) != lit)
            Q_EMIT litBarsChanged();
    });
}

QColor LevelMeter::litColor() { return SignalColors::green; }

int LevelMeter::litBarsAt(float level)
{
    int lit = 0;
    while (lit < bars && static_cast<float>(lit) / bars < level)
        ++lit;
    return lit;
}

} // namespace Orvello
