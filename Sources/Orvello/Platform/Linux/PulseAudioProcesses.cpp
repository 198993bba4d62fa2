#include "Orvello/Platform/Linux/PulseAudioProcesses.h"

#include "Orvello/Platform/Linux/PulseConnection.h"

namespace Orvello {

PulseAudioProcesses::PulseAudioProcesses(PulseConnection& connection)
    : m_connection(connection)
{
}

QList<qint64> PulseAudioProcesses::capturingInput()
{
    m_connection.refreshFacts();
    return m_connection.facts().capturingProcesses;
}

} // namespace Orvello
