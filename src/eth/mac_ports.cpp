// The MAC module: per-port settings as read-modify-write of one MAC register, and the MIB counters.
// Ports 0 and 1 are MAC 1, port 2 is MAC 2.
#include "eth/eth_util.h"

using namespace vq::eth;

namespace {

uint32_t macParaErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_MAC);
}

uint32_t portTable(uint32_t port) {
    return port == 2 ? kMac2Tbl : kMac1Tbl;
}

bool portOk(uint32_t chip, uint32_t port) {
    return vq::validChip(chip) && port <= 2;
}

// Zeroed entry, read, change word 0, write back; the write happens even after a failed read.
uint32_t setMacField(uint32_t chip, uint32_t port, uint32_t reg, vq::EntryField f, uint32_t value) {
    return updateEntry(chip, portTable(port), reg, [&](uint32_t *w) { setField(w, f, value); });
}

uint32_t readMac(uint32_t chip, uint32_t table, uint32_t reg, uint32_t *value) {
    Entry e;
    const uint32_t rc = VQ6192_Read_Table(chip, table, reg, e.w);
    *value = e.w[0];
    return rc;
}

// A 64-bit counter slot of the MIB record: high word first.
void putSlot(uint32_t *rec, uint32_t slot, uint64_t value) {
    rec[2 * slot] = static_cast<uint32_t>(value >> 32);
    rec[2 * slot + 1] = static_cast<uint32_t>(value);
}

// MIB slots filled from one MAC register, in the order they are collected (after register 123 and
// registers 32 and 33, which feed several slots).
struct MibSlot {
    uint8_t reg;
    uint8_t slot;
};
// clang-format off
constexpr MibSlot kMibFirst[] = {
    {34, 34}, {35, 35}, {36, 36}, {37, 17}, {38, 18}, {39, 19}, {40, 20}, {41, 21}, {42, 22}, {43, 23},
    {44, 41}, {45, 37}, {46, 39}, {48, 24},
};
constexpr MibSlot kMibRest[] = {
    {50, 38}, {51, 44},
    {64, 56}, {65, 57}, {66, 28}, {67, 29}, {68, 30}, {69, 4}, {70, 5}, {71, 6}, {72, 7}, {73, 8}, {74, 9},
    {75, 10},
    {77, 46}, {78, 47}, {79, 48}, {80, 49}, {81, 50},
    {85, 31}, {87, 32}, {84, 62}, {86, 63},
};
// clang-format on
constexpr uint32_t kMibSlotOverrun = 45;
constexpr uint32_t kMibSlotJabberVeryLong = 43;
constexpr uint32_t kMibSlotVeryLong = 64;
constexpr uint32_t kMibSlotJabber = 65;
constexpr uint32_t kMibSlotShortRunt = 26;
constexpr uint32_t kMibSlotRunt = 16;
constexpr uint32_t kMibSlotShort = 15;
constexpr uint32_t kMibSlotTxOctets = 52;
constexpr uint32_t kMibSlotRxOctets = 53;
constexpr uint32_t kMibSlotRxOctetsOk = 54;
constexpr uint32_t kMibSlotRxOctetsBad = 55;

// The jabber and very-long slots (MAC registers 49 and 52).
uint32_t collectDfx(uint32_t chip, uint32_t table, uint32_t *rec) {
    uint32_t jabber = 0, veryLong = 0;
    uint32_t rc = readMac(chip, table, 49, &jabber);
    rc |= readMac(chip, table, 52, &veryLong);
    putSlot(rec, kMibSlotJabberVeryLong, uint64_t{jabber} + veryLong);
    putSlot(rec, kMibSlotVeryLong, veryLong);
    putSlot(rec, kMibSlotJabber, jabber);
    return rc;
}

}  // namespace

extern "C" {

// Every accepted mode clears the work-mode bit; the other work modes have no setting of their own.
VQ6192_API uint32_t VQ6192_MAC_SetPortWorkMode(uint32_t chip, uint32_t port, uint32_t mode) {
    if (!portOk(chip, port) || mode == 0) {
        return macParaErr(chip);
    }
    const uint32_t rc = setMacField(chip, port, kMacTxFen, kMacAnEnable, 0);
    if (rc != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_MAC, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_MAC_SetPortWorkMode.VQ6192_Write_Table(%u,%u,%u)     ErrCode[%#x]\r\n",
                      chip, portTable(port), kMacTxFen, rc);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_MAC_GetPortWorkMode(uint32_t chip, uint32_t port, uint32_t *mode) {
    if (!portOk(chip, port) || mode == nullptr) {
        return macParaErr(chip);
    }
    uint32_t v = 0;
    const uint32_t rc = readMac(chip, portTable(port), kMacTxFen, &v);
    *mode = wordField(v, kMacAnEnable);
    return rc;
}

VQ6192_API uint32_t VQ6192_MAC_GetPortLinkStatus(uint32_t chip, uint32_t port, uint32_t unused,
                                                 uint32_t *link) {
    (void)unused;
    if (!portOk(chip, port) || link == nullptr) {
        return macParaErr(chip);
    }
    *link = 0;
    uint32_t v = 0;
    const uint32_t rc = readMac(chip, portTable(port), kMacSynOk, &v);
    *link = wordField(v, kMacLinkUp);
    return rc;
}

VQ6192_API uint32_t VQ6192_MAC_SetPortTxEn(uint32_t chip, uint32_t port, uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacPortEn, kMacTxEn, enable);
}

VQ6192_API uint32_t VQ6192_MAC_SetPortRxEn(uint32_t chip, uint32_t port, uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacPortEn, kMacRxEn, enable);
}

// The MAC strips the receive CRC when the receive FCS is off.
VQ6192_API uint32_t VQ6192_MAC_SetPortRxFcsEn(uint32_t chip, uint32_t port, uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacCrcStrip, kMacCrcStripBit, enable ^ 1u);
}

VQ6192_API uint32_t VQ6192_MAC_SetPortTxFcsEn(uint32_t chip, uint32_t port, uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacTxFen, kMacCrcAdd, enable);
}

VQ6192_API uint32_t VQ6192_MAC_SetPortTxPadEn(uint32_t chip, uint32_t port, uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacTxFen, kMacPadEnable, enable);
}

VQ6192_API uint32_t VQ6192_MAC_SetPortRxUnderSizePktEn(uint32_t chip, uint32_t port, uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacRxCtrl, kMacRuntPkt, enable);
}

VQ6192_API uint32_t VQ6192_MAC_SetPortRxPadStripEn(uint32_t chip, uint32_t port, uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacRxCtrl, kMacStripPad, enable);
}

VQ6192_API uint32_t VQ6192_MAC_SetPortMaxPktLenCfg(uint32_t chip, uint32_t port, uint32_t len) {
    if (!portOk(chip, port) || len >= 16384) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacMaxFrmSize, kMacMaxFrm, len);
}

VQ6192_API uint32_t VQ6192_MAC_SetPortLoopbackEn(uint32_t chip, uint32_t port, uint32_t kind,
                                                 uint32_t enable) {
    if (!portOk(chip, port) || !flag(enable)) {
        return macParaErr(chip);
    }
    if (kind == 1) {
        return setMacField(chip, port, kMacLineLoop, kMacLineLoopBit, enable);
    }
    if (kind == 2) {
        return setMacField(chip, port, kMacLpCtrl, kMacMiiLoop, enable);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_MAC_SetPortPauseMode(uint32_t chip, uint32_t port, uint32_t mode) {
    if (!portOk(chip, port) || mode > 3) {
        return macParaErr(chip);
    }
    return setMacField(chip, port, kMacFdFcEn, kMacRxFdFc, mode > 0 ? 1 : 0);
}

VQ6192_API uint32_t VQ6192_MAC_GetPortPauseMode(uint32_t chip, uint32_t port, uint32_t *mode) {
    if (!portOk(chip, port) || mode == nullptr) {
        return macParaErr(chip);
    }
    uint32_t v = 0;
    const uint32_t rc = readMac(chip, portTable(port), kMacFdFcEn, &v);
    *mode = wordField(v, kMacRxFdFc) != 0 ? 3 : 0;
    return rc;
}

VQ6192_API uint32_t VQ6192_MAC_SetPortPauseAddr(uint32_t chip, uint32_t port, const uint8_t mac[6]) {
    if (!portOk(chip, port) || mac == nullptr) {
        return macParaErr(chip);
    }
    uint32_t rc = setMacField(chip, port, kMacFdFcAddrHigh, kMacFdFcAddrHighBits,
                              static_cast<uint32_t>(mac[0]) << 8 | mac[1]);
    rc |= updateEntry(chip, portTable(port), kMacFdFcAddrLow, [&](uint32_t *w) {
        w[0] = static_cast<uint32_t>(mac[2]) << 24 | static_cast<uint32_t>(mac[3]) << 16 |
               static_cast<uint32_t>(mac[4]) << 8 | mac[5];
    });
    return rc;
}

VQ6192_API uint32_t VQ6192_MAC_GetPortPauseAddr(uint32_t chip, uint32_t port, uint8_t mac[6]) {
    if (!portOk(chip, port) || mac == nullptr) {
        return macParaErr(chip);
    }
    uint32_t high = 0, low = 0;
    (void)readMac(chip, portTable(port), kMacFdFcAddrHigh, &high);
    const uint32_t rc = readMac(chip, portTable(port), kMacFdFcAddrLow, &low);
    mac[0] = static_cast<uint8_t>(high >> 8);
    mac[1] = static_cast<uint8_t>(high);
    mac[2] = static_cast<uint8_t>(low >> 24);
    mac[3] = static_cast<uint8_t>(low >> 16);
    mac[4] = static_cast<uint8_t>(low >> 8);
    mac[5] = static_cast<uint8_t>(low);
    return rc;
}

VQ6192_API uint32_t VQ6192_MAC_GetPortMibCnt(uint32_t chip, uint32_t port, uint32_t rec[132]) {
    if (!portOk(chip, port) || rec == nullptr) {
        return macParaErr(chip);
    }
    const uint32_t table = portTable(port);
    uint32_t v = 0, rxOk = 0, rxBad = 0;
    uint32_t rc = readMac(chip, table, 123, &v);
    putSlot(rec, kMibSlotOverrun, v);
    rc |= readMac(chip, table, 32, &rxOk);
    rc |= readMac(chip, table, 33, &rxBad);
    putSlot(rec, kMibSlotRxOctetsOk, rxOk);
    putSlot(rec, kMibSlotRxOctetsBad, rxBad);
    putSlot(rec, kMibSlotRxOctets, uint64_t{rxOk} + rxBad);
    for (const MibSlot &s : kMibFirst) {
        rc |= readMac(chip, table, s.reg, &v);
        putSlot(rec, s.slot, v);
    }
    rc |= collectDfx(chip, table, rec);
    uint32_t runt = 0, shortFrm = 0, txOk = 0, txBad = 0;
    for (const MibSlot &s : kMibRest) {
        if (s.reg == 64) {
            // Registers 53 and 54 come between 51 and 64.
            rc |= readMac(chip, table, 53, &runt);
            rc |= readMac(chip, table, 54, &shortFrm);
            putSlot(rec, kMibSlotRunt, runt);
            putSlot(rec, kMibSlotShort, shortFrm);
            putSlot(rec, kMibSlotShortRunt, uint64_t{runt} + shortFrm);
        }
        rc |= readMac(chip, table, s.reg, &v);
        putSlot(rec, s.slot, v);
        if (s.reg == 64) {
            txOk = v;
        } else if (s.reg == 65) {
            txBad = v;
        }
    }
    putSlot(rec, kMibSlotTxOctets, uint64_t{txOk} + txBad);
    return rc;
}

// Called with the table id itself and without argument checks beyond what keeps the host safe.
VQ6192_API uint32_t VQ6192_MAC_GetPortMibCntDfx(uint32_t chip, uint32_t tableId, uint32_t rec[132]) {
    if (rec == nullptr) {
        return macParaErr(chip);
    }
    return collectDfx(chip, tableId, rec);
}

}  // extern "C"
