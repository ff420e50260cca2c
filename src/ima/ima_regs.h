// Registers of the IMA block, named once.
#pragma once

#include <cstdint>

namespace vq::ima {

struct Reg {
    uint32_t addr;
    uint32_t bit;
    uint32_t width;
};

// Command mailbox of the IMA processor.
inline constexpr uint32_t kMboxCtrl = 0x4440;
inline constexpr Reg kMboxBusy{kMboxCtrl, 15, 1};
inline constexpr Reg kMboxAccepted{kMboxCtrl, 14, 1};
inline constexpr Reg kMboxStart{kMboxCtrl, 13, 1};
inline constexpr Reg kMboxCode{kMboxCtrl, 8, 5};
inline constexpr Reg kMboxGroup{0x4442, 0, 9};
inline constexpr uint32_t kMboxPara1Low = 0x4444;  // parameters 1..3: low, high halfword pairs
inline constexpr uint32_t kMboxParaCount = 3;

// Block start-up and reset.
inline constexpr Reg kBlockBusy{0x4004, 0, 1};
inline constexpr Reg kStartup4008{0x4008, 0, 1};
inline constexpr Reg kStartup5024{0x5024, 0, 1};
inline constexpr Reg kStartup5030{0x5030, 0, 3};
inline constexpr Reg kBlockReset{0x000A, 8, 1};
inline constexpr Reg kVcReset{0x000A, 15, 1};

// VC-4 transparent ports (k = VC-4 0..3).
inline constexpr uint32_t kVc4PortBase = 0x4C20;
inline constexpr uint32_t kVc4PortGroupBit = 0, kVc4PortGroupWidth = 9, kVc4PortEnableBit = 9;
inline constexpr uint32_t kVc4EnableReg = 0x5028;     // bits 0..3
inline constexpr uint32_t kRxLinkResetBase = 0x5200;  // + 2 * link, bit 0
inline constexpr Reg kTcRxReset{0x5200, 0, 1};
inline constexpr Reg kTcTxReset{0x5200, 1, 1};
inline constexpr Reg kTxLinkSetChanged{0x48AE, 0, 1};

// Link parameters, automatic processing enables.
inline constexpr Reg kLinkAlpha{0x4C10, 0, 2};
inline constexpr Reg kLinkBeta{0x4C10, 2, 3};
inline constexpr Reg kLinkGamma{0x4C10, 5, 3};
inline constexpr uint32_t kAutoProcReg = 0x4452;  // bits 0..10

// Processor time tick, events, interrupt enables, loopbacks.
inline constexpr uint32_t kTimeTickReg = 0x4418;
inline constexpr Reg kFeRestartEvent{0x4422, 1, 1};
inline constexpr Reg kEventRequest{0x4424, 11, 1};
inline constexpr Reg kEventBusy{0x4424, 10, 1};
inline constexpr Reg kEventGroup{0x4424, 0, 9};
inline constexpr Reg kIntLevel2{0x4426, 0, 10};
inline constexpr Reg kIntLevel4{0x4428, 0, 4};
inline constexpr Reg kIntLevel8{0x442A, 0, 10};
inline constexpr Reg kIntLevel1{0x442C, 0, 2};
inline constexpr Reg kEventPending{0x442C, 1, 1};
inline constexpr Reg kLoopImaSide{0x4002, 0, 3};
inline constexpr Reg kLoopTcSide{0x5026, 0, 1};

// Cell capture.
inline constexpr Reg kCapBusy{0x4C3A, 0, 1};
inline constexpr uint32_t kCapCtrl = 0x4C3C;
inline constexpr Reg kCapStart{kCapCtrl, 0, 1};
inline constexpr Reg kCapCount{kCapCtrl, 1, 10};
inline constexpr Reg kCapMode{kCapCtrl, 12, 4};
inline constexpr Reg kCapStartSlot{0x4C3E, 0, 10};
inline constexpr uint32_t kCapFilterBase = 0x4C40;  // block i at + 10 * i, registers R0..R4
inline constexpr uint32_t kCapFilterStride = 10;
inline constexpr uint32_t kCapFilterBlocks = 32;
inline constexpr uint32_t kCapDdrBase = 0x4D00000;  // filter block i at + i * 0x10000
inline constexpr uint32_t kCapDdrArea = 0x10000;
inline constexpr uint32_t kCapSlots = 1024;

}  // namespace vq::ima
