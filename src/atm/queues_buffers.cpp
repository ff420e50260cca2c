// ATM queues and buffer management: connection and port queues with their delete handshake, the
// per-connection buffer flags, the port queue rate of IMA, UNI and VC-4 ports, the drop-threshold
// templates and the chip-wide buffer limits.
#include <bit>

#include "atm/atm_internal.h"
#include "platform/osal.h"

namespace {

using namespace vq::atm;

constexpr uint32_t kFlushRounds = 1000;
constexpr uint32_t kFlushPollUs = 2;
constexpr uint32_t kQueueNum = 8529;  // 8192 connection queues, then one per line port

bool legalQid(uint32_t stype, uint32_t qid) {
    return stype == 1 ? qid <= 15 : (qid >= 1 && qid <= 8190);
}

bool bmTemplateLegal(const ATM_BM_TH &t) {
    constexpr uint32_t kMax = 0x7FFFF;
    return t.bBmWeight < 32 && t.dwBmRedMin <= kMax && t.dwBmRedMax <= kMax && t.dwBmFdTh0 <= kMax &&
           t.dwBmFdTh1 <= kMax && t.dwBmClpTh0 <= kMax && t.dwBmClpTh1 <= kMax;
}

constexpr uint32_t bmTemplateIndex(uint32_t idx, uint32_t serviceType) {
    return (serviceType - 1) * 64 + idx;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_DelAtmBwdQm(uint32_t chip, uint32_t index, uint32_t kind) {
    // A queue out of range is refused before the chip is touched; an unknown kind clears the command
    // field first, as the chip's delete sequence does.
    if (!vq::validChip(chip) || (kind == 0 && index >= VQ6192_ATM_LINE_PORT_NUM) ||
        (kind == 1 && index > VQ6192_ATM_VCX_NUM)) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kQmDelCmdReg, 0, kQmDelCmdBit, kQmDelCmdWidth);
    if (kind > 1) {
        VQ6192_ATM_TRACE(chip, "Err. VQ6192_ATM_DelAtmBwdQm: Config is error! ChipID: %#x\r\n", chip);
        return paraCode(chip);
    }
    const uint32_t portQueue = kind == 0 ? 1u : 0u;
    const uint32_t entryIndex = kind == 0 ? kPortQueueBase + index : index;
    Entry q;
    const uint32_t rcRead = readEntry(chip, kLinkQm, entryIndex, q);
    q.set(kQmBinding, 0);
    VQ6192_WriteRegField(chip, kQmDelCmdReg, index, kQmDelQueueBit, kQmDelQueueWidth);
    VQ6192_WriteRegField(chip, kQmDelCmdReg, portQueue, kQmDelKindBit, 1);
    VQ6192_WriteRegField(chip, kQmDelCmdReg, kQmDelStart, kQmDelCmdBit, kQmDelCmdWidth);
    for (uint32_t round = 0; round < kFlushRounds; ++round) {
        vq::DrvDelayUs(kFlushPollUs);
        if (VQ6192_ReadRegField(chip, kQmDelStatReg, kQmDelCmdBit, kQmDelCmdWidth) == kQmDelDone) {
            const uint32_t rcWrite = writeEntry(chip, kLinkQm, entryIndex, q);
            VQ6192_WriteRegField(chip, kQmDelCmdReg, 0, kQmDelCmdBit, kQmDelCmdWidth);
            return rcRead | rcWrite;
        }
    }
    // Not acknowledged: the queue entry is not rewritten and the command is left standing.
    return paraCode(chip) | rcRead;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmQm(uint32_t chip, uint32_t queueIndex, uint32_t port,
                                        uint32_t serviceType, uint32_t qid) {
    if (!vq::validChip(chip) || queueIndex > kQueueNum || port >= VQ6192_ATM_LINE_PORT_NUM ||
        serviceType > 5 || !legalQid(serviceType, qid)) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kLinkQm, queueIndex, [&](Entry &e) {
        e.set(kQmQid, qid);
        e.set(kQmType, serviceType);
        e.set(kQmPort, port);
        e.set(kQmSta, 0);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmQm(uint32_t chip, uint32_t queueIndex, uint16_t *wPort,
                                        uint32_t *renServiceType, uint16_t *wQid) {
    if (!vq::validChip(chip) || queueIndex > kQueueNum || wPort == nullptr || renServiceType == nullptr ||
        wQid == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kLinkQm, queueIndex, e);
    *wPort = static_cast<uint16_t>(e.get(kQmPort));
    *renServiceType = e.get(kQmType);
    *wQid = static_cast<uint16_t>(e.get(kQmQid));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmBmPvc(uint32_t chip, uint32_t vcx, const uint8_t bm[5]) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || bm == nullptr || bm[0] > 1 || bm[1] > 1 ||
        bm[2] > 1 || bm[3] > 1 || bm[4] >= 64) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kBmPvc, vcx, [&](Entry &e) {
        e.set(kBmPvcClpt, bm[0]);
        e.set(kBmPvcFd, bm[1]);
        e.set(kBmPvcPfd, bm[2]);
        e.set(kBmPvcRed, bm[3]);
        e.set(kBmPvcThIndex, bm[4]);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmBmPvc(uint32_t chip, uint32_t vcx, uint8_t bm[5]) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || bm == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kBmPvc, vcx, e);
    bm[0] = static_cast<uint8_t>(e.get(kBmPvcClpt));
    bm[1] = static_cast<uint8_t>(e.get(kBmPvcFd));
    bm[2] = static_cast<uint8_t>(e.get(kBmPvcPfd));
    bm[3] = static_cast<uint8_t>(e.get(kBmPvcRed));
    bm[4] = static_cast<uint8_t>(e.get(kBmPvcThIndex));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmImaQmTm(uint32_t chip, uint32_t linePort, uint32_t links,
                                             uint32_t tsBitmap, uint32_t frameLenCode, uint32_t mode) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || links >= VQ6192_ATM_LINE_PORT_NUM ||
        frameLenCode > 3 || mode > 3) {
        return paraErr(chip);
    }
    const uint32_t t = static_cast<uint32_t>(std::popcount(tsBitmap));
    if (t == 0) {
        return paraCode(chip);  // no timeslot: no rate, and no trace
    }
    const uint32_t frameLen = 32u << frameLenCode;
    uint32_t period = 0;
    uint32_t threshold = 0;
    switch (mode) {
        case 1:  // VC-4 transparent port
            period = 64;
            threshold = 168;
            break;
        case 2:  // UNI port
            period = 150568 / t;
            threshold = 3;
            break;
        case 3:  // IMA group
            period = (150641 * frameLen / ((frameLen - 1) * t)) & 0x3FFFFu;
            threshold = (3 * links) & 0xFFu;
            break;
        default:
            return paraErr(chip);
    }
    return modifyEntry(chip, kPortQm, linePort, [&](Entry &e) {
        e.set(kPortQmPeriod, period);
        e.set(kPortQmTh, threshold);
    });
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmImaQm(uint32_t chip, uint32_t linePort, uint32_t threshold,
                                           uint32_t period) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || threshold >= 1024) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kPortQm, linePort, [&](Entry &e) {
        e.set(kPortQmPeriod, period & 0x3FFFFu);
        e.set(kPortQmTh, threshold & 0xFFu);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmImaQm(uint32_t chip, uint32_t linePort, uint16_t *threshold,
                                           uint32_t *period) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || threshold == nullptr ||
        period == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kPortQm, linePort, e);
    *threshold = static_cast<uint16_t>(e.get(kPortQmTh));
    *period = e.get(kPortQmPeriod);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmBmTh(uint32_t chip, uint32_t idx, uint32_t serviceType,
                                          const ATM_BM_TH *th) {
    if (!vq::validChip(chip) || idx >= 64 || serviceType < 1 || serviceType > 5 || th == nullptr ||
        !bmTemplateLegal(*th)) {
        return paraErr(chip);
    }
    const ATM_BM_TH t = *th;
    return modifyEntry(chip, kBmTh, bmTemplateIndex(idx, serviceType), [&](Entry &e) {
        e.set(kBmThClp0S0, t.wBmClp0S0);
        e.set(kBmThClp1S0, t.wBmClp1S1);
        e.set(kBmThWeight, t.bBmWeight);
        e.set(kBmThRedMin, t.dwBmRedMin);
        e.set(kBmThRedMax, t.dwBmRedMax);
        e.set(kBmThFdTh0, t.dwBmFdTh0);
        e.set(kBmThFdTh1, t.dwBmFdTh1);
        e.set(kBmThClpTh0, t.dwBmClpTh0);
        e.set(kBmThClpTh1, t.dwBmClpTh1);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmBmTh(uint32_t chip, uint32_t idx, uint32_t serviceType, ATM_BM_TH *th) {
    if (!vq::validChip(chip) || idx >= 64 || serviceType < 1 || serviceType > 5 || th == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kBmTh, bmTemplateIndex(idx, serviceType), e);
    th->wBmClp0S0 = static_cast<uint16_t>(e.get(kBmThClp0S0));
    th->wBmClp1S1 = static_cast<uint16_t>(e.get(kBmThClp1S0));
    th->bBmWeight = static_cast<uint8_t>(e.get(kBmThWeight));
    th->dwBmRedMin = e.get(kBmThRedMin);
    th->dwBmRedMax = e.get(kBmThRedMax);
    th->dwBmFdTh0 = e.get(kBmThFdTh0);
    th->dwBmFdTh1 = e.get(kBmThFdTh1);
    th->dwBmClpTh0 = e.get(kBmThClpTh0);
    th->dwBmClpTh1 = e.get(kBmThClpTh1);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmBmReg(uint32_t chip, const uint16_t v[14]) {
    if (!vq::validChip(chip) || v == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t n = 0; n < kBmLimitNum; ++n) {
        const uint32_t high = kBmLimitBase + kBmLimitStride * n;
        VQ6192_WriteRegField(chip, high, v[2 * n], 0, 3);
        VQ6192_WriteRegField(chip, high + 2, v[2 * n + 1], 0, 16);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmBmReg(uint32_t chip, uint32_t v[7]) {
    if (!vq::validChip(chip) || v == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t n = 0; n < kBmLimitNum; ++n) {
        const uint32_t high = kBmLimitBase + kBmLimitStride * n;
        v[n] = VQ6192_ReadRegField(chip, high, 0, 3) << 16 | VQ6192_ReadRegField(chip, high + 2, 0, 16);
    }
    return 0;
}

}  // extern "C"
