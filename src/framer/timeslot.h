// The timeslot tables: one 16-bit entry per source and timeslot, an E1/T1 table and an E3/T3 and VC-4
// table for each direction (the two tables of a direction share the chip's memory, with disjoint
// indexes). Entry index = (source << 5) | timeslot; E1/T1 sources are internal E1 numbers, E3/T3
// sources 336 + e3, VC-4 sources 348 + vc4 (timeslot 0).
#pragma once

#include <cstdint>

#include "core/entry_field.h"

namespace vq::framer::ts {

inline constexpr uint32_t kE1Ingress = tableId("Tsulet1tab");
inline constexpr uint32_t kE1Egress = tableId("Tsdlet1tab");
inline constexpr uint32_t kHoIngress = tableId("Tsulet3vc4tab");
inline constexpr uint32_t kHoEgress = tableId("Tsdlet3vc4tab");

inline constexpr EntryField kEn = entryField("Tsulet1tab", "En");
inline constexpr EntryField kModuleind = entryField("Tsulet1tab", "Moduleind");
inline constexpr EntryField kTsspeed = entryField("Tsulet1tab", "Tsspeed");
inline constexpr EntryField kChnum = entryField("Tsulet1tab", "Chnum");

inline constexpr uint32_t kE3SourceBase = 336;
inline constexpr uint32_t kVc4SourceBase = 348;
inline constexpr uint32_t kTimeslots = 32;

// The cleared entry: En 0, Moduleind none, Tsspeed 64 kbit/s, Chnum 0.
inline constexpr uint32_t kCleared = 0x7800;
// En and the 64 kbit/s rate, as E3/T3 and VC-4 entries always have them.
inline constexpr uint32_t kEnabled64k = 0x9800;
// CES channel field: bit 9 marks a PRBS test channel, bits 8..0 are the channel.
inline constexpr uint32_t kCesPrbsBit = 0x200;

// Moduleind values.
inline constexpr uint32_t kModuleCes = 0;
inline constexpr uint32_t kModuleAtm = 1;
inline constexpr uint32_t kModuleMlppp = 2;
inline constexpr uint32_t kModuleNone = 3;

// Service types at the interface.
inline constexpr uint32_t kSvcPpp = 1;
inline constexpr uint32_t kSvcAtm = 2;
inline constexpr uint32_t kSvcCes = 3;
inline constexpr uint32_t kSvcNone = 4;

enum class Kind { E1, HighOrder };

constexpr uint32_t index(uint32_t source, uint32_t timeslot) {
    return (source << 5) | timeslot;
}

// Writes an entry to the ingress table for dir 0 or 2 and the egress table for dir 1 or 2 (ingress
// first); other directions write nothing. Returns 0, or the failing table write's status.
uint32_t writeEntry(uint32_t chip, Kind kind, uint32_t source, uint32_t timeslot, uint32_t dir,
                    uint32_t value);

// Reads the entry of one direction (0 ingress, 1 egress). Returns the table read's status.
uint32_t readEntry(uint32_t chip, Kind kind, uint32_t source, uint32_t timeslot, uint32_t dir,
                   uint32_t *value);

}  // namespace vq::framer::ts
