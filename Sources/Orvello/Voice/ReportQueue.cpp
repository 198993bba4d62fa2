#include "Orvello/Voice/ReportQueue.h"

namespace Orvello {

void ReportQueue::push(const BlockReport& report) noexcept
{
    const bool isChange = m_folded && m_folded->isSpeaking != report.isSpeaking;
    if (isChange && m_ring.tryPush(*m_folded))
        m_folded.reset();

    if (m_folded)
        m_folded->append(report);
    else
        m_folded = report;

    if (m_ring.size() < backlog && m_ring.tryPush(*m_folded))
        m_folded.reset();
}

std::vector<BlockReport> ReportQueue::takeAll()
{
    std::vector<BlockReport> reports;
    while (const std::optional<BlockReport> report = pop())
        reports.push_back(*report);
    if (m_folded)
        reports.push_back(*m_folded);
    m_folded.reset();
    return reports;
}

} // namespace Orvello
