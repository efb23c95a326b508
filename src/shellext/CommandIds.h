#pragma once

#include <cstdint>

namespace orvane {

/// The identifiers that the shell lends to one menu: the next free one, the bound, and the reserve
/// for the contents of dynamic folders, which are listed long after the count was returned.
class CommandIds {
 public:
  CommandIds() = default;
  /// The range `first` to `last`, both included.
  CommandIds(std::int32_t first, std::int32_t last)
      : m_first(first), m_last(last), m_dynamicLast(last), m_next(first) {}

  std::int32_t First() const { return m_first; }
  /// The shell's bound; from the first dynamic folder on the reserve's.
  std::int32_t Last() const { return m_last; }
  std::int32_t Next() const { return static_cast<std::int32_t>(m_next); }

  /// Whether the next identifier is still the shell's gift.
  bool CanTake() const { return m_next <= m_last; }

  /// The next free identifier, which is then taken.
  std::int32_t Take() { return static_cast<std::int32_t>(m_next++); }

  /// What QueryContextMenu answers: one more than the identifiers taken or reserved.
  std::int32_t Count() const { return static_cast<std::int32_t>(m_next - m_first + 1); }

  /// Remembers where dynamic identifiers start and sets a reserve of them aside: 1000, 2500 or 5000
  /// by what is left, or all but ten of fewer than 1001. Dynamic folders then take none past it
  /// unless they are `unbounded`: what lies past the count belongs to somebody else.
  void ReserveDynamic(bool unbounded);

  /// Goes on with the dynamic identifiers where the last folder stopped, and notes where this one
  /// does.
  void ResumeDynamic() {
    m_next = m_dynamic;
    m_last = m_dynamicLast;
  }
  void SuspendDynamic() { m_dynamic = m_next; }

 private:
  std::int32_t m_first = 0;
  std::int32_t m_last = 0;
  std::int32_t m_dynamicLast = 0;
  std::int64_t m_next = 0;  // may stand one past the largest 32-bit number
  std::int64_t m_dynamic = 0;
};

}  // namespace orvane
