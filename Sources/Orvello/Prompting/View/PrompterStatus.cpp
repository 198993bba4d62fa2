#include "Orvello/Prompting/View/PrompterStatus.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/View/CardStyle.h"

namespace Orvello {

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

PrompterStatus::Appearance PrompterStatus::appearance(State state)
{
    switch (state) {
    case State::GetReady:
        //: On the card, at most about 20 characters: the countdown runs.
        return { tr("get ready"), CardStyle::yellow };
    case State::HoverPause:
        //: On the card, at most about 20 characters: the pointer over the card holds the text.
        return { tr("hover pause"), CardStyle::orange };
    case State::Paused:
        //: On the card, at most about 20 characters: the text stands still.
        return { tr("paused"), CardStyle::orange };
    case State::Listening:
        //: On the card, at most about 20 characters: the text waits for the user to speak.
        return { tr("listening…"), CardStyle::yellow };
    case State::Scrolling:
        break;
    }
    //: On the card, at most about 20 characters: the text moves.
    return { tr("scrolling"), CardStyle::green };
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
