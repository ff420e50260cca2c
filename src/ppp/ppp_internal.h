// What the PPP files share: status codes, the argument check with its condition text, inner channel
// numbers, and read-modify-write of table fields and register fields.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "core/entry_field.h"
#include "core/status.h"
#include "ppp/ppp_regs.h"
#include "vq6192/core.h"
#include "vq6192/ppp.h"
#include "vq6192/table.h"

namespace vq::ppp {

inline constexpr uint32_t kErrPara = 1;
inline constexpr uint32_t kErrNoMem = 2;
inline constexpr uint32_t kErrTimeout = 4;
inline constexpr uint32_t kErrNoData = 7;

// Source tag of the module's work buffers.
inline constexpr char kMemTag[] = "vq6192_ppp_cfg";

constexpr uint32_t status(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_MODULE_PPP, err);
}

// Traces "ParaErr. [ <condition> ]\r\n" at PRINT_PARA_WRONG and returns the parameter error.
uint32_t paraErr(uint32_t chip, const char *condition);

// Fails the calling operation with the parameter error when `cond` does not hold; the trace names the
// condition as written.
#define VQ6192_PPP_CHECK(chip, cond)                  \
    do {                                              \
        if (!(cond)) {                                \
            return ::vq::ppp::paraErr((chip), #cond); \
        }                                             \
    } while (0)

#define VQ6192_PPP_CHECK_CHIP(chip)                                          \
    do {                                                                     \
        if (!::vq::validChip(chip)) {                                        \
            return ::vq::ppp::paraErr((chip), "ulChipID < VQ6192_CHIP_NUM"); \
        }                                                                    \
    } while (0)

#define VQ6192_PPP_TRACE(chip, ...) VQ6192_Printf(chip, VQ6192_MODULE_PPP, VQ6192_PRINT_NORMAL, __VA_ARGS__)
#define VQ6192_PPP_ERR(chip, ...) \
    VQ6192_Printf(chip, VQ6192_MODULE_PPP, VQ6192_PRINT_EXCEPTION1_INFO, __VA_ARGS__)

// Inner numbers of a channel: the ingress (receive) and egress (transmit) table index.
inline uint32_t ingressInner(uint32_t chip, uint32_t ch) {
    return VQ6192_PPP_CalcPppChnl(chip, ch, VQ6192_BASE_SRV_DIRECT_INGRESS);
}
inline uint32_t egressInner(uint32_t chip, uint32_t ch) {
    return VQ6192_PPP_CalcPppChnl(chip, ch, VQ6192_BASE_SRV_DIRECT_EGRESS);
}

struct Entry {
    uint32_t w[VQ6192_TBL_MAX_WORDS]{};
};

inline uint32_t readEntry(uint32_t chip, uint32_t table, uint32_t index, Entry &e) {
    return VQ6192_Read_Table(chip, table, index, e.w);
}
inline uint32_t writeEntry(uint32_t chip, uint32_t table, uint32_t index, const Entry &e) {
    return VQ6192_Write_Table(chip, table, index, e.w);
}

struct FieldValue {
    EntryField field;
    uint32_t value;
};

// Reads the entry of the fields' table, sets the fields and writes it back (one write). A failed read
// leaves the entry unwritten: there is nothing sound to write back.
uint32_t setFields(uint32_t chip, uint32_t index, std::initializer_list<FieldValue> fields);
inline uint32_t setField(uint32_t chip, uint32_t index, EntryField f, uint32_t value) {
    return setFields(chip, index, {{f, value}});
}
// Reads one field; on a failed read *value is 0.
uint32_t getField(uint32_t chip, uint32_t index, EntryField f, uint32_t *value);

inline uint32_t reg(uint32_t chip, RegField f) {
    return VQ6192_ReadRegField(chip, f.addr, f.startBit, f.width);
}
inline void setReg(uint32_t chip, RegField f, uint32_t value) {
    VQ6192_WriteRegField(chip, f.addr, value, f.startBit, f.width);
}
// The per-channel register at base + 2 * n.
inline RegField chanReg(uint32_t base, uint32_t n, uint32_t startBit, uint32_t width) {
    return {base + 2 * n, startBit, width};
}
// A bundle's bit in a bundle bit register: sixteen bundles per register.
inline RegField bundleBit(uint32_t base, uint32_t bundle) {
    return {base + 2 * (bundle / 16), bundle % 16, 1};
}

// Traces "Err. <operation> Return:[0x...]" when a multi-step operation ends with a nonzero status, and
// passes the status on.
uint32_t reportSteps(uint32_t chip, const char *operation, uint32_t rc);

// Platform waits.
void sleepUs(uint32_t us);

// Egress MC queue drain of a bundle: up to 500 times wait 30 ms and sum the queue counts. 0 when empty,
// the time-out otherwise.
uint32_t drainBundle(uint32_t chip, uint32_t bundle);

}  // namespace vq::ppp
