#include "Orvello/Prompting/View/LevelMeter.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

namespace Orvello {

LevelMeter::LevelMeter(const VoiceActivityEngine& voice, QObject* parent)
    : QObject(parent)
    , m_litBars(litBarsAt(voice.level()))
{
    connect(&voice, &VoiceActivityEngine::levelChanged, this, [this, &voice] {
        const int lit = litBarsAt(voice.level());
        if (assign(m_litBars, lit))
            Q_EMIT litBarsChanged();
    });
}

int LevelMeter::litBarsAt(float level)
{
    int lit = 0;
    while (lit < bars && static_cast<float>(lit) / bars < level)
        ++lit;
    return lit;
}

} // namespace Orvello
