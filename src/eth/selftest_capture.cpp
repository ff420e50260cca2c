// The Ethernet traffic self-test, the Ethernet packet capture and the PPP protocol packets that the
// packet engine inserts and hands up.
#include "eth/eth_util.h"
#include "platform/osal.h"

using namespace vq::eth;

namespace {

// Header bytes in an entry: word k holds b[4k+1], b[4k], b[4k+3], b[4k+2] from bit 0 up.
void packHead(const uint8_t *b, uint32_t *w) {
    for (uint32_t k = 0; k < kHeadBytes / 4; ++k) {
        const uint32_t lo = static_cast<uint32_t>(b[4 * k]) << 8 | b[4 * k + 1];
        const uint32_t hi = static_cast<uint32_t>(b[4 * k + 2]) << 8 | b[4 * k + 3];
        w[k] = hi << 16 | lo;
    }
}

void unpackHead(const uint32_t *w, uint8_t *b) {
    for (uint32_t k = 0; k < kHeadBytes / 4; ++k) {
        b[4 * k] = static_cast<uint8_t>(w[k] >> 8);
        b[4 * k + 1] = static_cast<uint8_t>(w[k]);
        b[4 * k + 2] = static_cast<uint8_t>(w[k] >> 24);
        b[4 * k + 3] = static_cast<uint8_t>(w[k] >> 16);
    }
}

uint32_t writeHead(uint32_t chip, uint32_t table, uint32_t index, const uint8_t *data) {
    Entry e;
    packHead(data, e.w);
    return VQ6192_Write_Table(chip, table, index, e.w);
}

uint32_t readHead(uint32_t chip, uint32_t table, uint32_t index, uint8_t *data) {
    Entry e;
    const uint32_t rc = VQ6192_Read_Table(chip, table, index, e.w);
    unpackHead(e.w, data);
    return rc;
}

// Polls a one-bit flag up to `polls` times for `want`.
bool pollFlag(uint32_t chip, Field f, uint32_t want, uint32_t polls) {
    for (uint32_t i = 0; i < polls; ++i) {
        if (get(chip, f) == want) {
            return true;
        }
    }
    return false;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ETH_SetSelfTestGlbCtl(uint32_t chip, uint32_t dir, uint32_t mac, uint32_t pattern,
                                                 uint32_t payloadLen) {
    if (!vq::validChip(chip) || !flag(dir) || macTable(mac) == 0 || pattern > 0xFF || payloadLen >= 4096) {
        return ethParaErr(chip);
    }
    set(chip, kSelfTestDirN, dir ^ 1u);
    set(chip, kSelfTestMac, mac - 1);
    set(chip, kSelfTestPattern, pattern);
    set(chip, kSelfTestPayloadLen, payloadLen);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSelfTestGlbCtl(uint32_t chip, uint32_t *dir, uint32_t *mac,
                                                 uint32_t *pattern, uint32_t *payloadLen) {
    if (!vq::validChip(chip) || dir == nullptr || mac == nullptr || pattern == nullptr ||
        payloadLen == nullptr) {
        return ethParaErr(chip);
    }
    *dir = get(chip, kSelfTestDirN) ^ 1u;
    *mac = get(chip, kSelfTestMac) + 1;
    *pattern = get(chip, kSelfTestPattern);
    *payloadLen = get(chip, kSelfTestPayloadLen);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSelfTestChnlEn(uint32_t chip, const uint16_t chnlEn[4]) {
    if (!vq::validChip(chip) || chnlEn == nullptr) {
        return ethParaErr(chip);
    }
    for (uint32_t k = 0; k < 4; ++k) {
        VQ6192_WriteReg(chip, kSelfTestChnlEnReg + 2 * k, chnlEn[k]);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSelfTestChnlEn(uint32_t chip, uint16_t chnlEn[4]) {
    if (!vq::validChip(chip) || chnlEn == nullptr) {
        return ethParaErr(chip);
    }
    for (uint32_t k = 0; k < 4; ++k) {
        chnlEn[k] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kSelfTestChnlEnReg + 2 * k));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSelfTestPRBS(uint32_t chip, uint32_t ch, uint32_t enable) {
    if (!vq::validChip(chip) || ch >= 64 || !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, kSelfTestPrbsCh, ch);
    set(chip, kSelfTestPrbsEn, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSelfTestPRBS(uint32_t chip, uint32_t *ch, uint32_t *enable) {
    if (!vq::validChip(chip) || ch == nullptr || enable == nullptr) {
        return ethParaErr(chip);
    }
    *ch = get(chip, kSelfTestPrbsCh);
    *enable = get(chip, kSelfTestPrbsEn);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSelfTestRate(uint32_t chip, uint32_t rate) {
    if (!vq::validChip(chip) || rate > 0xFFFF) {
        return ethParaErr(chip);
    }
    VQ6192_WriteReg(chip, kSelfTestRateReg, rate);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GtSelfTestRate(uint32_t chip, uint32_t *rate) {
    if (!vq::validChip(chip) || rate == nullptr) {
        return ethParaErr(chip);
    }
    *rate = VQ6192_ReadReg(chip, kSelfTestRateReg);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSelfTestEn(uint32_t chip, uint32_t enable5, uint32_t enable7) {
    if (!vq::validChip(chip) || !flag(enable5) || !flag(enable7)) {
        return ethParaErr(chip);
    }
    set(chip, kSelfTestEn5, enable5);
    set(chip, kSelfTestEn7, enable7);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSelfTestEn(uint32_t chip, uint32_t *enable5, uint32_t *enable7) {
    if (!vq::validChip(chip) || enable5 == nullptr || enable7 == nullptr) {
        return ethParaErr(chip);
    }
    *enable5 = get(chip, kSelfTestEn5);
    *enable7 = get(chip, kSelfTestEn7);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSelfTestTxHeadData(uint32_t chip, uint32_t index, const uint8_t data[64],
                                                     uint32_t len) {
    if (!vq::validChip(chip) || index >= kHeadEntries || data == nullptr || len >= 127) {
        return ethParaErr(chip);
    }
    const uint32_t rc = writeHead(chip, kTxHeadTbl, index, data);
    set(chip, kSelfTestTxHeadLen, len);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_GetSelfTestTxHeadData(uint32_t chip, uint32_t index, uint8_t data[64],
                                                     uint32_t *len) {
    if (!vq::validChip(chip) || index >= kHeadEntries || data == nullptr || len == nullptr) {
        return ethParaErr(chip);
    }
    const uint32_t rc = readHead(chip, kTxHeadTbl, index, data);
    *len = get(chip, kSelfTestTxHeadLen);
    return rc;
}

// The expected-header table has no mask bits of its own: the mask selector is checked (0 or 1) and
// the bytes go to the same entry either way.
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestShouldRxHeadData(uint32_t chip, uint32_t index,
                                                           const uint8_t data[64], uint32_t mask) {
    if (!vq::validChip(chip) || index >= kHeadEntries || data == nullptr || !flag(mask)) {
        return ethParaErr(chip);
    }
    return writeHead(chip, kRxHeadTbl, index, data);
}

VQ6192_API uint32_t VQ6192_ETH_GetSelfTestShouldRxHeadData(uint32_t chip, uint32_t index, uint8_t data[64]) {
    if (!vq::validChip(chip) || index >= kHeadEntries || data == nullptr) {
        return ethParaErr(chip);
    }
    return readHead(chip, kRxHeadTbl, index, data);
}

VQ6192_API uint32_t VQ6192_ETH_StartCapEthPkt(uint32_t chip, uint32_t dir, uint32_t len,
                                              const uint8_t match[32], const uint8_t option[4]) {
    if (!vq::validChip(chip) || !flag(dir) || len >= 4096 || match == nullptr || option == nullptr) {
        return ethParaErr(chip);
    }
    set(chip, kCapDir, dir);
    set(chip, kCapLen, len);
    for (uint32_t i = 0; i < 16; ++i) {
        VQ6192_WriteReg(chip, kCapMatchReg + 2 * i,
                        static_cast<uint32_t>(match[2 * i + 1]) << 8 | match[2 * i]);
    }
    VQ6192_WriteReg(chip, kCapOption0Reg, static_cast<uint32_t>(option[1]) << 8 | option[0]);
    VQ6192_WriteReg(chip, kCapOption1Reg, static_cast<uint32_t>(option[3]) << 8 | option[2]);
    set(chip, kCapStart, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_StopCapEthPkt(uint32_t chip) {
    if (!vq::validChip(chip)) {
        return ethParaErr(chip);
    }
    set(chip, kCapStart, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetCapEthPkt(uint32_t chip, uint8_t *buf, uint16_t *len) {
    if (!vq::validChip(chip) || buf == nullptr || len == nullptr) {
        return ethParaErr(chip);
    }
    if (!pollFlag(chip, kCapDone, 1, kCapPolls)) {
        *len = 0;
        return ethStatus(chip, kErrTimeout);
    }
    const uint32_t n = get(chip, kCapRxLen);
    *len = static_cast<uint16_t>(n);
    for (uint32_t i = 0; i < (n + 1) / 2; ++i) {
        set(chip, kCapRdAddr, i);
        const uint32_t word = VQ6192_ReadReg(chip, kCapRdDataReg);
        buf[2 * i] = static_cast<uint8_t>(word >> 8);
        if (2 * i + 1 < n) {
            buf[2 * i + 1] = static_cast<uint8_t>(word);
        }
    }
    set(chip, kCapRelease, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_InsertPppProtocolPkt(uint32_t chip, const uint8_t *data, uint32_t len) {
    if (!vq::validChip(chip) || data == nullptr || len >= kProtoPktMax) {
        return ethParaErr(chip);
    }
    if (!pollFlag(chip, kProtoPktInsertBusy, 0, kProtoPktPolls)) {
        VQ6192_Printf(
            chip, VQ6192_MODULE_ETH, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_ETH_InsertPppProtocolPkt. Insert Protocol Pkt Failed! PMU is busy now! \r\n");
        return ethStatus(chip, kErrBusy);
    }
    for (uint32_t i = 0; i < (len + 1) / 2; ++i) {
        const uint32_t low = 2 * i + 1 < len ? data[2 * i + 1] : 0;
        set(chip, kProtoInsAddr, i);
        VQ6192_WriteReg(chip, kProtoInsDataReg, static_cast<uint32_t>(data[2 * i]) << 8 | low);
    }
    set(chip, kProtoInsLen, len);
    set(chip, kProtoInsSend, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_ReadPppProtocolPkt(uint32_t chip, uint8_t *buf, uint32_t *len) {
    if (!vq::validChip(chip) || buf == nullptr || len == nullptr) {
        return ethParaErr(chip);
    }
    auto *work = static_cast<uint8_t *>(vq::_drv_malloc(kProtoPktMax, "vq6192_eth_sub", __LINE__));
    if (work == nullptr) {
        return ethStatus(chip, VQ6192_ERR_NULL);
    }
    if (get(chip, kProtoPktWaiting) == 0) {
        vq::_drv_free(work);
        VQ6192_Printf(
            chip, VQ6192_MODULE_ETH, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_ETH_InsertPppProtocolPkt. Read Protocol Pkt Failed! There is no Pkt in RAM! \r\n ");
        return ethStatus(chip, kErrBusy);
    }
    const uint32_t n = get(chip, kProtoRdLen);
    for (uint32_t i = 0; i < (n + 1) / 2; ++i) {
        set(chip, kProtoRdAddr, i);
        const uint32_t word = VQ6192_ReadReg(chip, kProtoRdDataReg);
        work[2 * i] = static_cast<uint8_t>(word >> 8);
        work[2 * i + 1] = static_cast<uint8_t>(word);
    }
    set(chip, kProtoRdRelease, 1);
    vq::memcpy_s(buf, n, work, n);
    *len = n;
    vq::_drv_free(work);
    return 0;
}

}  // extern "C"
