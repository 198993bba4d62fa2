#include "Orvello/Adapters/Linux/Sound/PulseMicrophones.h"

#include "Orvello/Adapters/Linux/Sound/PulseConnection.h"

#include <utility>

namespace Orvello {

namespace {

/// The one that is recorded, or would be. Null when there is none.
const PulseSource* heardSource(const PulseConnection::Condition& condition)
{
    const PulseFacts& facts = condition.facts;
    if (condition.heard)
        return facts.source(condition.heard->source);
    if (const PulseSource* const chosen = facts.source(condition.chosenMicrophone))
        return chosen;
    return facts.haveMicrophone() ? facts.source(facts.defaultSource) : nullptr;
}

Microphones::Trouble troubleOf(const PulseConnection::Condition& condition)
{
    using Trouble = Microphones::Trouble;
    if (condition.isRefused)
        return Trouble::Refused;
    if (!condition.isAnswering)
        return Trouble::NoAnswer;
    const PulseSource* const source = heardSource(condition);
    if (!source)
        return condition.facts.haveMicrophone() ? Trouble::None : Trouble::NoMicrophone;
    if (source->isMuted
        || (condition.heard
            && condition.facts.mutedRecordings.contains(condition.heard->recording)))
        return Trouble::Muted;
    return condition.heard && !condition.heard->isDelivering ? Trouble::Withheld : Trouble::None;
}

} // namespace

PulseMicrophones::PulseMicrophones(PulseConnection& connection)
    : m_connection(connection)
{
}

Microphones::State PulseMicrophones::state()
{
    const PulseConnection::Condition condition = m_connection.condition();
    State state;
    state.isReady = condition.isKnown && condition.facts.haveMicrophone();
    // Nobody looks for what a sink plays among the microphones. Whoever wants to hear it makes it
    // the server's default.
    for (const PulseSource& source : condition.facts.sources)
        if (!source.isMonitor)
            state.choices.append({ QString::fromUtf8(source.name), source.description });
    const PulseSource* const source = heardSource(condition);
    state.heard = source ? source->description : QString();
    state.trouble = troubleOf(condition);
    return state;
}

void PulseMicrophones::choose(const QString& identifier)
{
    m_connection.chooseMicrophone(identifier.toUtf8());
}

void PulseMicrophones::setObserver(std::function<void()> changed)
{
    m_connection.setObserver(std::move(changed));
}

} // namespace Orvello
