// PPP packet capture: the DDR capture of frame headers into per-slot DDR regions, the COBC capture of
// one frame through registers, and the FIFO capture of one frame of a channel or bundle.
#include <cstring>

#include "platform/osal.h"
#include "ppp/ppp_internal.h"
#include "vq6192/chip.h"

using namespace vq::ppp;

namespace {

constexpr uint32_t kWorkBytes = 8192;
constexpr uint32_t kWorkSlots = kWorkBytes / sizeof(uint32_t);  // one u32 per captured byte
constexpr uint32_t kBlockBytes = 64;
constexpr uint32_t kBlockWords = kBlockBytes / 2;
constexpr uint32_t kMaxPkt = VQ6192_PPP_MAX_PKT_LEN;

// Ingress record: halfword 1 start and end of packet and length bits 0..9 (bits 6..15), halfword 0
// bit 0 length bit 16; 56 data bytes from byte 4.
constexpr uint32_t kUpStartBit = 1, kUpEndBit = 0;
constexpr uint32_t kUpDataOffset = 4, kUpDataBytes = 56;
constexpr uint32_t kUpHeadBlocks = 40, kUpMoreBlocks = 35;
// Egress record: halfword 0 bit 15 start, bit 14 end, bits 4..9 valid bytes of the block.
constexpr uint32_t kDownStartBit = 15, kDownEndBit = 14;
constexpr uint32_t kDownStartData = 8, kDownData = 4;
constexpr uint32_t kDownHeadBlocks = 32, kDownBlocks = 33;

constexpr uint32_t kCobcReadyReads = 3;
constexpr uint32_t kCobcMaxBytes = 1024;
constexpr uint32_t kCobcHighOnly = 1u << 0, kCobcSop = 1u << 1, kCobcEnd = 1u << 2;

constexpr uint32_t kFifoWaits = 3;
constexpr uint32_t kFifoWaitUs = 1000000;
constexpr uint32_t kFifoNextUs = 10000;
constexpr uint32_t kFifoEndFlag = 1u << 2;

uint32_t bit(uint32_t v, uint32_t n) {
    return (v >> n) & 1u;
}

uint8_t blockByte(const uint16_t *block, uint32_t k) {
    const uint16_t half = block[k / 2];
    return static_cast<uint8_t>((k % 2) == 0 ? half >> 8 : half & 0xFFu);
}

uint32_t readBlock(uint32_t chip, uint32_t slot, uint32_t offset, uint16_t *block) {
    uint32_t addr = 0;
    VQ6192_PPP_ComputeDdrCapAddr(chip, slot, offset, &addr);
    setReg(chip, kDdrReadClear, 0);
    return VQ6192_Base_ReadDdr64Bytes(chip, addr, block, 1, kBlockBytes);
}

// The work buffer of a DDR or FIFO read: one u32 per byte.
struct Work {
    uint32_t *slot = nullptr;
    uint32_t len = 0;
    explicit Work() : slot(static_cast<uint32_t *>(vq::_drv_malloc(kWorkBytes, kMemTag, __LINE__))) {}
    ~Work() {
        if (slot != nullptr) {
            vq::_drv_free(slot);
        }
    }
    Work(const Work &) = delete;
    Work &operator=(const Work &) = delete;
    void put(uint8_t byte) {
        if (len < kWorkSlots) {
            slot[len++] = byte;
        }
    }
    void copyOut(uint8_t *buf, uint32_t n) const {
        for (uint32_t k = 0; k < n && k < len; ++k) {
            buf[k] = static_cast<uint8_t>(slot[k]);
        }
    }
};

uint32_t cobcFetch(uint32_t chip, uint32_t *data, uint32_t *flags) {
    setReg(chip, kCobcRead, 1);
    setReg(chip, kCobcRead, 0);
    for (uint32_t k = 0; k < kCobcReadyReads; ++k) {
        if (reg(chip, kCobcReady) == 1) {
            *data = VQ6192_ReadReg(chip, kCobcData);
            *flags = reg(chip, kCobcFlags);
            return 1;
        }
    }
    VQ6192_PPP_ERR(chip, "VQ6192_PPP_GetCobcCapPkt:GetMpPpuCobcCaptRdy RData Don't Ready!\n");
    return 0;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_PPP_SetPppDdrCapChan(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulSlot,
                                                uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppDdrCapChan : ulPppChanNo:[%d] ulSlot:[%d] ulEnable:[%d]\n",
                     ulPppChanNo, ulSlot, ulEnable);
    return setFields(chip, ingressInner(chip, ulPppChanNo), {{kGpen, ulEnable}, {kGplink, ulSlot}});
}

VQ6192_API uint32_t VQ6192_PPP_StartPppDdrCapPkt(uint32_t chip, uint32_t ulDirect, uint32_t usSkyEyeMax) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulDirect <= VQ6192_BASE_SRV_DIRECT_EGRESS);
    VQ6192_PPP_CHECK(chip, usSkyEyeMax <= VQ6192_MAX_SKY_EYE);
    setReg(chip, kDdrCapRun, 0);
    setReg(chip, kDdrCapCount, usSkyEyeMax);
    // The chip's direction select is 1 for ingress and 0 for egress.
    setReg(chip, kDdrCapDirect, ulDirect == VQ6192_BASE_SRV_DIRECT_INGRESS ? 1 : 0);
    setReg(chip, kDdrCapRun, 1);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_StartPppDdrCapPkt : ulDirect:[%d] usSkyEyeMax:[%d]\n", ulDirect,
                     usSkyEyeMax);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_StopPppDdrCapPkt(uint32_t chip) {
    VQ6192_PPP_CHECK_CHIP(chip);
    setReg(chip, kDdrCapRun, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_ComputeDdrCapAddr(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                                 uint32_t *pulAddr) {
    const uint32_t inner = ingressInner(chip, ulSlot);
    if (pulAddr != nullptr) {
        *pulAddr = ((inner << kDdrCapRegionShift) | kDdrCapBase) + ulOffset;
    }
    return inner;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDdrCapPktUp(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                                 uint8_t *pucBuf, uint16_t *pusLen, uint32_t *pulNextOffset) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulSlot < VQ6192_DDR_CAP_MAX);
    VQ6192_PPP_CHECK(chip, pucBuf != NULL);
    VQ6192_PPP_CHECK(chip, pusLen != NULL);
    VQ6192_PPP_CHECK(chip, pulNextOffset != NULL);
    Work work;
    if (work.slot == nullptr) {
        return status(chip, kErrNoMem);
    }
    uint16_t block[kBlockWords];
    uint32_t rc = 0;
    uint32_t offset = ulOffset;
    bool found = false;
    for (uint32_t k = 0; k < kUpHeadBlocks && !found; ++k) {
        rc |= readBlock(chip, ulSlot, offset, block);
        offset += kBlockBytes;
        found = bit(block[1], kUpStartBit) != 0;
    }
    if (!found) {
        VQ6192_PPP_ERR(chip, "CDrvVQ6192::GetPppDdrCapPktUp : Get DDR Pkt Begin Head Failed!\n");
        return status(chip, kErrNoData);
    }
    auto copyData = [&]() {
        for (uint32_t k = 0; k < kUpDataBytes; ++k) {
            work.put(blockByte(block, kUpDataOffset + k));
        }
    };
    copyData();
    for (uint32_t more = 0; bit(block[1], kUpEndBit) == 0 && more < kUpMoreBlocks; ++more) {
        rc |= readBlock(chip, ulSlot, offset, block);
        offset += kBlockBytes;
        copyData();
    }
    uint32_t len = kMaxPkt;
    if (bit(block[1], kUpEndBit) == 0) {
        VQ6192_PPP_ERR(chip, "CDrvVQ6192 : Get DDR Pkt Failed! Can't Find The End Head!\n");
    } else {
        len = (block[0] & 1u) * 65536u + (block[1] >> 6);
        len = len < work.len ? len : work.len;
        len = len < kMaxPkt ? len : kMaxPkt;
    }
    work.copyOut(pucBuf, len);
    *pusLen = static_cast<uint16_t>(len);
    *pulNextOffset = offset;
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDdrCapPktDown(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                                   uint8_t *pucBuf, uint16_t *pusLen,
                                                   uint32_t *pulNextOffset) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulSlot < VQ6192_DDR_CAP_MAX);
    VQ6192_PPP_CHECK(chip, pucBuf != NULL);
    VQ6192_PPP_CHECK(chip, pusLen != NULL);
    VQ6192_PPP_CHECK(chip, pulNextOffset != NULL);
    Work work;
    if (work.slot == nullptr) {
        return status(chip, kErrNoMem);
    }
    uint16_t block[kBlockWords];
    uint32_t rc = 0;
    uint32_t offset = ulOffset;
    bool found = false;
    for (uint32_t k = 0; k < kDownHeadBlocks && !found; ++k) {
        rc = readBlock(chip, ulSlot, offset, block);
        offset += kBlockBytes;
        found = bit(block[0], kDownStartBit) != 0 && bit(block[0], kDownEndBit) == 0;
    }
    if (!found) {
        VQ6192_PPP_ERR(chip, "NO BEGIN!");
        return status(chip, kErrNoData);
    }
    auto copyValid = [&](uint32_t from) {
        const uint32_t valid = (block[0] >> 4) & 0x3Fu;
        for (uint32_t k = 0; k < valid && from + k < kBlockBytes; ++k) {
            work.put(blockByte(block, from + k));
        }
    };
    copyValid(kDownStartData);
    for (uint32_t read = 1; read < kDownBlocks; ++read) {
        rc = readBlock(chip, ulSlot, offset, block);
        offset += kBlockBytes;
        const bool start = bit(block[0], kDownStartBit) != 0;
        const bool end = bit(block[0], kDownEndBit) != 0;
        if (start && end) {
            continue;  // a frame of its own inside this one: skipped
        }
        if (!start) {
            copyValid(kDownData);
        }
        if (end && !start) {
            break;
        }
    }
    const uint32_t len = work.len < kMaxPkt ? work.len : kMaxPkt;
    work.copyOut(pucBuf, len);
    *pusLen = static_cast<uint16_t>(len);
    *pulNextOffset = offset;
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDdrCapPkt(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                               uint32_t ulDirect, uint8_t *pucBuf, uint16_t *pusLen,
                                               uint32_t *pulNextOffset) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulSlot < VQ6192_DDR_CAP_MAX);
    VQ6192_PPP_CHECK(chip, ulDirect < VQ6192_BASE_SRV_DIRECT_BOTH);
    VQ6192_PPP_CHECK(chip, pucBuf != NULL);
    VQ6192_PPP_CHECK(chip, pusLen != NULL);
    VQ6192_PPP_CHECK(chip, pulNextOffset != NULL);
    if (ulDirect == VQ6192_BASE_SRV_DIRECT_INGRESS) {
        return VQ6192_PPP_GetPppDdrCapPktUp(chip, ulSlot, ulOffset, pucBuf, pusLen, pulNextOffset);
    }
    return VQ6192_PPP_GetPppDdrCapPktDown(chip, ulSlot, ulOffset, pucBuf, pusLen, pulNextOffset);
}

VQ6192_API uint32_t VQ6192_PPP_SetCobcMode(uint32_t chip, uint32_t ulChanNo, uint32_t ulMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    setReg(chip, chanReg(kChanModeBase, ulChanNo, kCobcModeBit, kCobcModeWidth), ulMode);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetCobcMode : ulChanNo:[%d] ulMode:[%d]\n", ulChanNo, ulMode);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetCobcMode(uint32_t chip, uint32_t ulChanNo, uint32_t *pulMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pulMode != NULL);
    *pulMode = reg(chip, chanReg(kChanModeBase, ulChanNo, kCobcModeBit, kCobcModeWidth));
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_StartCobcCap(uint32_t chip, uint32_t usHdlcChnl) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, usHdlcChnl < VQ6192_HDLC_MAX);
    for (uint32_t v : {0u, 1u, 0u}) {
        setReg(chip, kCobcClear, v);
    }
    // The channel field holds 11 bits: channels 2048..4095 are written cut to those bits.
    setReg(chip, kCobcChannel, usHdlcChnl);
    setReg(chip, kCobcStart, 1);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_StartCobcCap : usHdlcChnl:[%d]\n", usHdlcChnl);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_StopCobcCap(uint32_t chip) {
    VQ6192_PPP_CHECK_CHIP(chip);
    setReg(chip, kCobcStart, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetCobcCapPkt(uint32_t chip, uint8_t *pucBuf, uint16_t *pusLen) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pucBuf != NULL);
    VQ6192_PPP_CHECK(chip, pusLen != NULL);
    *pusLen = 0;
    bool ready = false;
    for (uint32_t k = 0; k < kCobcReadyReads && !ready; ++k) {
        ready = reg(chip, kCobcReady) == 1;
    }
    if (!ready) {
        return 0;
    }
    // Every fetch, hit or miss, counts two bytes against the 1024-byte bound: the search for the start
    // word and the ready waits are bounded by it too.
    uint32_t budget = kCobcMaxBytes;
    uint32_t data = 0, flags = 0;
    bool started = false;
    uint32_t len = 0;
    while (budget >= 2) {
        budget -= 2;
        if (cobcFetch(chip, &data, &flags) == 0) {
            continue;
        }
        if (!started) {
            if ((flags & kCobcSop) == 0) {
                continue;
            }
            started = true;
            if ((flags & kCobcEnd) != 0) {
                break;  // a start word that also ends the frame carries nothing usable
            }
            pucBuf[len++] = static_cast<uint8_t>(data >> 8);
            if ((flags & kCobcHighOnly) == 0) {
                pucBuf[len++] = static_cast<uint8_t>(data & 0xFFu);
            }
            continue;
        }
        pucBuf[len++] = static_cast<uint8_t>(data >> 8);
        if ((flags & kCobcEnd) == 0 || (flags & kCobcHighOnly) == 0) {
            pucBuf[len++] = static_cast<uint8_t>(data & 0xFFu);
        }
        if ((flags & kCobcEnd) != 0) {
            *pusLen = static_cast<uint16_t>(len);
            return 0;
        }
    }
    VQ6192_PPP_ERR(chip, "VQ6192_PPP_GetCobcCapPkt Can't find SOP!\n");
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppFifoCapData(uint32_t chip, uint8_t *pucBuf, uint32_t *pulLen) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pucBuf != NULL);
    VQ6192_PPP_CHECK(chip, pulLen != NULL);
    Work work;
    if (work.slot == nullptr) {
        return status(chip, kErrNoMem);
    }
    while (work.len < kMaxPkt) {
        setReg(chip, kFifoCapRead, 1);
        setReg(chip, kFifoCapRead, 0);
        bool ack = false;
        for (uint32_t k = 0; k < kFifoWaits && !ack; ++k) {
            ack = reg(chip, kFifoCapAck) == 1;
            if (!ack) {
                sleepUs(kFifoWaitUs);
            }
        }
        if (!ack) {
            VQ6192_PPP_ERR(chip, "VQ6192_PPP_GetPppFifoCapData : Get Fifo Cap Read Ack Failed\n");
            return status(chip, kErrNoData);
        }
        const uint32_t first = VQ6192_ReadReg(chip, kFifoCapData1);
        const uint32_t second = VQ6192_ReadReg(chip, kFifoCapData0);
        const uint32_t flags = reg(chip, kFifoCapFlags);
        const uint8_t bytes[4] = {static_cast<uint8_t>(first >> 8), static_cast<uint8_t>(first & 0xFFu),
                                  static_cast<uint8_t>(second >> 8), static_cast<uint8_t>(second & 0xFFu)};
        const uint32_t count = (flags & 3u) + 1;
        for (uint32_t k = 0; k < count; ++k) {
            work.put(bytes[k]);
        }
        if ((flags & kFifoEndFlag) != 0) {
            break;
        }
        sleepUs(kFifoNextUs);
    }
    const uint32_t len = work.len < kMaxPkt ? work.len : kMaxPkt;
    work.copyOut(pucBuf, len);
    *pulLen = len;
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_CapturePppFifoPkt(uint32_t chip, uint32_t ulChanNo, uint32_t ulType,
                                                 uint8_t *pucBuf, uint32_t *pulLen) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulType < VQ6192_PPP_CHNTYPE_BUTT);
    if (ulType == VQ6192_PPP_CHNTYPE_PPP) {
        VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_NONE_SCH_PPP_MAX);
    } else {
        VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_SCH_MP_MAX);
    }
    VQ6192_PPP_CHECK(chip, pucBuf != NULL);
    VQ6192_PPP_CHECK(chip, pulLen != NULL);
    setReg(chip, kFifoCapChannel, ingressInner(chip, ulChanNo));
    setReg(chip, kFifoCapType, ulType);
    setReg(chip, kFifoCapStart, 1);
    bool ready = false;
    for (uint32_t k = 0; k < kFifoWaits && !ready; ++k) {
        ready = reg(chip, kFifoCapReady) == 1;
        if (!ready) {
            sleepUs(kFifoWaitUs);
        }
    }
    setReg(chip, kFifoCapStart, 0);
    if (!ready) {
        VQ6192_PPP_ERR(chip, "VQ6192_PPP_CapturePppFifoPkt : Get Fifo Cap Ready Failed\n");
        return status(chip, kErrNoData);
    }
    return VQ6192_PPP_GetPppFifoCapData(chip, pucBuf, pulLen);
}

}  // extern "C"
