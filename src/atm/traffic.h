// Traffic descriptor arithmetic shared by the policers and the shapers.
#pragma once

#include <cstdint>

#include "vq6192/atm.h"

namespace vq::atm {

// Bucket modes.
inline constexpr uint16_t kModeTagAll = 4;   // CLP0+1 cells, tag
inline constexpr uint16_t kModeDrop0 = 5;    // CLP0 cells, drop
inline constexpr uint16_t kModeTag0 = 6;     // CLP0 cells, tag
inline constexpr uint16_t kModeDropAll = 7;  // CLP0+1 cells, drop

// Fills `pair` for one descriptor type; `shaping` selects the shaper's variant of type 2. Returns false
// for a type with no conversion of its own (the pair is then left off).
bool convert(uint32_t type, uint32_t pcr, uint32_t scr, uint32_t cdvt, uint32_t mbs, bool shaping,
             ATM_BUCKET_PAIR *pair);

// Codes of a bucket pair: mode A, increment A, limit A, mode B, increment B, limit B. `cyclesPerTick`
// is 88 for the policer (704 ns ticks) and 352 for the shaper (2816 ns ticks).
void bucketCodes(const ATM_BUCKET_PAIR &pair, double cyclesPerTick, double tickNs, uint16_t out[6]);

}  // namespace vq::atm
