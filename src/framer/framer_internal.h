// What the framer files share: status codes, channel block addresses and the channel reset.
#pragma once

#include <cstdint>

#include "core/status.h"
#include "framer/framer_regs.h"
#include "vq6192/core.h"
#include "vq6192/framer.h"

namespace vq::framer {

inline constexpr uint32_t kErrPara = 1;
inline constexpr uint32_t kErrTimeout = 3;
inline constexpr uint32_t kErrSubOp = 4;
inline constexpr uint32_t kErrState = 7;

// Framer status: module number 14.
constexpr uint32_t status(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_ERR_MODULE_FRAMER, err);
}

// The framer's parameter error: "ParaErr.\r\n" under module FRM, status module 14.
uint32_t paraErr(uint32_t chip);

// First word of the ingress / egress block of register channel (v, k, r).
constexpr uint32_t ingressBlock(uint32_t v, uint32_t k, uint32_t r) {
    return kIngressBase + kVc4Stride * v + kTug3Stride * k + kChannelStride * r;
}
constexpr uint32_t egressBlock(uint32_t v, uint32_t k, uint32_t r) {
    return kEgressBase + kVc4Stride * v + kTug3Stride * k + kChannelStride * r;
}

// Register channel of an internal E1 number; false (framer error 4 for the caller) if the numbering
// refuses it.
bool regChannel(uint32_t chip, uint32_t e1, uint32_t *v, uint32_t *k, uint32_t *r);

// The channel resets of register channel (v, k, r).
void writeIngressReset(uint32_t chip, uint32_t v, uint32_t k, uint32_t r, uint32_t reset);
void writeEgressReset(uint32_t chip, uint32_t v, uint32_t k, uint32_t r, uint32_t reset);

// TDM mode read back from register 0x000E bit 1.
uint32_t tdmMode(uint32_t chip);

// Traces a framer line under module FRM at PRINT_EXCEPTION1_INFO.
#define VQ6192_FRM_TRACE(chip, ...) \
    VQ6192_Printf(chip, VQ6192_MODULE_FRM, VQ6192_PRINT_EXCEPTION1_INFO, __VA_ARGS__)

}  // namespace vq::framer
