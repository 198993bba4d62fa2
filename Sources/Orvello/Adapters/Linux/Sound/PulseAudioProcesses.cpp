#include "Orvello/Adapters/Linux/Sound/PulseAudioProcesses.h"

#include "Orvello/Adapters/Linux/Sound/PulseConnection.h"

namespace Orvello {

PulseAudioProcesses::PulseAudioProcesses(PulseConnection& connection)
    : m_connection(connection)
{
}

QList<qint64> PulseAudioProcesses::capturingInput()
{
    m_connection.refreshFacts();
    return m_connection.condition().facts.capturingProcesses;
}

} // namespace Orvello
