// What the ATM files share: status codes, trace lines and whole-entry table access.
#pragma once

#include <cstdint>

#include "atm/atm_regs.h"
#include "core/status.h"
#include "vq6192/atm.h"
#include "vq6192/core.h"
#include "vq6192/table.h"

namespace vq::atm {

inline constexpr uint32_t kModule = VQ6192_MODULE_ATM;

// The ATM parameter error: (chip bits) + 0x20001. Step failures return it too.
constexpr uint32_t paraCode(uint32_t chip) {
    return makeStatus(chip, kModule, VQ6192_ERR_PARA);
}

// Traces "ParaErr. \r\n" at PRINT_PARA_WRONG and returns the parameter error.
uint32_t paraErr(uint32_t chip);

// A failed step: its message at PRINT_EXCEPTION1_INFO (formatted with the chip id), then the parameter
// error.
uint32_t stepErr(uint32_t chip, const char *message);

#define VQ6192_ATM_TRACE(chip, ...) \
    VQ6192_Printf(chip, VQ6192_MODULE_ATM, VQ6192_PRINT_EXCEPTION1_INFO, __VA_ARGS__)

// One table entry, whole.
struct Entry {
    uint32_t w[VQ6192_TBL_MAX_WORDS] = {};
    uint32_t get(EntryField f) const { return getField(w, f); }
    void set(EntryField f, uint32_t v) { setField(w, f, v); }
};

inline uint32_t readEntry(uint32_t chip, uint32_t table, uint32_t index, Entry &e) {
    return VQ6192_Read_Table(chip, table, index, e.w);
}
inline uint32_t writeEntry(uint32_t chip, uint32_t table, uint32_t index, const Entry &e) {
    return VQ6192_Write_Table(chip, table, index, e.w);
}

// Read-modify-write of one entry; the result is the OR of the read and the write.
template <typename Fn>
uint32_t modifyEntry(uint32_t chip, uint32_t table, uint32_t index, Fn &&change) {
    Entry e;
    uint32_t rc = readEntry(chip, table, index, e);
    change(e);
    rc |= writeEntry(chip, table, index, e);
    return rc;
}

// A 0, 1, 0 pulse on one register bit.
void pulseBit(uint32_t chip, uint32_t addr, uint32_t bit);

}  // namespace vq::atm
