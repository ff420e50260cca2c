// The default dump lists behind g_VQ6192_ChipDump_DirectReg and g_VQ6192_ChipDump_InDirectReg, and
// for every default table record the catalogue id whose member layout describes its entries (the
// dump file names tables by their dump names only).
#pragma once

#include <cstdint>

#include "vq6192/dump.h"

namespace vq::dump {

inline constexpr uint32_t kDefaultBlockCount = 11;
inline constexpr uint32_t kDefaultGroupCount = 7;

// Catalogue id of table `table` of default group `group`, or -1 past the lists.
int32_t defaultTableCatalogueId(uint32_t group, uint32_t table);

}  // namespace vq::dump
