// A set of non-zero 64-bit values with a lookup of a few nanoseconds: open
// addressing in a table at most half full, so a search usually stops at the
// first or second slot, and the table is small enough to stay in cache.
#pragma once

#include <cstdint>
#include <vector>

namespace combwise {

class PackedSet {
 public:
  void assign(const std::vector<std::uint64_t>& values) {
    std::size_t size = 16;
    m_bits = 4;
    while (size < 2 * values.size()) {
      size *= 2;
      ++m_bits;
    }
    m_slots.assign(size, 0);
    m_mask = size - 1;
    for (std::uint64_t value : values) {
      if (value == 0) continue;
      std::size_t at = slotOf(value);
      while (m_slots[at] != 0 && m_slots[at] != value) at = (at + 1) & m_mask;
      m_slots[at] = value;
    }
  }

  bool contains(std::uint64_t value) const {
    if (m_slots.empty() || value == 0) return false;
    for (std::size_t at = slotOf(value);; at = (at + 1) & m_mask) {
      const std::uint64_t held = m_slots[at];
      if (held == value) return true;
      if (held == 0) return false;
    }
  }

 private:
  std::size_t slotOf(std::uint64_t value) const {
    return static_cast<std::size_t>((value * 0x9e3779b97f4a7c15ULL) >> (64 - m_bits));
  }

  std::vector<std::uint64_t> m_slots;
  std::size_t m_mask = 0;
  unsigned m_bits = 0;
};

}  // namespace combwise
