// Helpers the Ethernet-side operations share: status codes, register fields and entry updates.
#pragma once

#include <cstdint>

#include "core/entry_field.h"
#include "core/status.h"
#include "eth/eth_regs.h"
#include "vq6192/core.h"
#include "vq6192/eth.h"
#include "vq6192/table.h"

namespace vq::eth {

inline uint32_t get(uint32_t chip, Field f) {
    return VQ6192_ReadRegField(chip, f.addr, f.bit, f.width);
}

inline void set(uint32_t chip, Field f, uint32_t value) {
    VQ6192_WriteRegField(chip, f.addr, value, f.bit, f.width);
}

inline uint32_t ethStatus(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_MODULE_ETH, err);
}

inline uint32_t ethParaErr(uint32_t chip) {
    return paraErr(chip, VQ6192_MODULE_ETH);
}

inline constexpr uint32_t kErrTimeout = 3;
inline constexpr uint32_t kErrBusy = 4;
inline constexpr uint32_t kErrPktType = 7;

// One whole table entry buffer.
struct Entry {
    uint32_t w[VQ6192_TBL_MAX_WORDS] = {};
};

// Reads an entry, lets `change` edit it and writes it back; the write happens even when the read
// failed. The result is the OR of both statuses.
template <typename Change>
uint32_t updateEntry(uint32_t chip, uint32_t table, uint32_t index, Change change) {
    Entry e;
    uint32_t rc = VQ6192_Read_Table(chip, table, index, e.w);
    change(e.w);
    rc |= VQ6192_Write_Table(chip, table, index, e.w);
    return rc;
}

inline uint32_t readField(uint32_t chip, uint32_t table, uint32_t index, EntryField f, uint32_t *value) {
    Entry e;
    const uint32_t rc = VQ6192_Read_Table(chip, table, index, e.w);
    *value = getField(e.w, f);
    return rc;
}

inline uint32_t writeField(uint32_t chip, uint32_t table, uint32_t index, EntryField f, uint32_t value) {
    return updateEntry(chip, table, index, [&](uint32_t *w) { setField(w, f, value); });
}

// A field of a one-word entry (a MAC register).
inline uint32_t wordField(uint32_t word, EntryField f) {
    const uint32_t w[2] = {word, 0};
    return getField(w, f);
}

// MAC 1 and MAC 2 register files; 0 for any other number.
inline uint32_t macTable(uint32_t mac) {
    return mac == VQ6192_ETH_MAC_1 ? kMac1Tbl : mac == VQ6192_ETH_MAC_2 ? kMac2Tbl : 0;
}

inline bool flag(uint32_t v) {
    return v <= 1;
}

}  // namespace vq::eth
