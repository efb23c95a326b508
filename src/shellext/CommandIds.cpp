#include "shellext/CommandIds.h"

#include <algorithm>

namespace orvane {

void CommandIds::ReserveDynamic(bool unbounded) {
  m_dynamic = m_next;
  const std::int64_t left = m_last - m_next;
  if (left < 1001)
    m_next = std::max(m_next, std::int64_t{m_last} - 10);
  else if (left < 2501)
    m_next += 1000;
  else if (left < 5001)
    m_next += 2500;
  else
    m_next += 5000;
  if (!unbounded) m_dynamicLast = static_cast<std::int32_t>(m_next - 1);
}

}  // namespace orvane
