#include "Orvello/Prompting/View/PrompterStatus.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/View/CardStyle.h"

#include <array>

namespace Orvello {

using namespace Qt::StringLiterals;

PrompterStatus::PrompterStatus(const ScrollEngine& engine, QObject* parent)
    : QObject(parent)
    , m_engine(engine)
    , m_state(stateOfEngine())
{
    for (const auto signal : { &ScrollEngine::countdownChanged, &ScrollEngine::hoverPausedChanged,
             &ScrollEngine::isRunningChanged, &ScrollEngine::voiceFollowActiveChanged,
             &ScrollEngine::voiceGateChanged })
        connect(&engine, signal, this, &PrompterStatus::update);
}

QString PrompterStatus::label() const { return appearance(m_state).label; }

QColor PrompterStatus::color() const { return appearance(m_state).color; }

QStringList PrompterStatus::labels()
{
    QStringList labels;
    for (const State state :
        { State::GetReady, State::HoverPause, State::Paused, State::Listening, State::Scrolling })
        labels.append(appearance(state).label);
    return labels;
}

void PrompterStatus::setVisibleInRecordings(bool isVisible)
{
    if (assign(m_isVisibleInRecordings, isVisible))
        Q_EMIT visibleInRecordingsChanged();
}

const PrompterStatus::Appearance& PrompterStatus::appearance(State state)
{
    static const std::array<Appearance, 5> appearances { {
        { u"get ready"_s, CardStyle::yellow },
        { u"hover pause"_s, CardStyle::orange },
        { u"paused"_s, CardStyle::orange },
        { u"listening…"_s, CardStyle::yellow },
        { u"scrolling"_s, CardStyle::green },
    } };
    return appearances[static_cast<std::size_t>(state)];
}

PrompterStatus::State PrompterStatus::stateOfEngine() const
{
    if (m_engine.isCountingDown())
        return State::GetReady;
    if (m_engine.hoverPaused())
        return State::HoverPause;
    if (!m_engine.isRunning())
        return State::Paused;
    if (m_engine.voiceFollowActive() && !m_engine.voiceGate())
        return State::Listening;
    return State::Scrolling;
}

void PrompterStatus::update()
{
    const State state = stateOfEngine();
    if (assign(m_state, state))
        Q_EMIT changed();
}

} // namespace Orvello
