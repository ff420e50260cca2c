// ATM shaping: the per-port shapers of the rt-VBR, nrt-VBR and UBR+ classes (2816 ns shaper tick), the
// rate classes of the CBR scheduler and the excess-bandwidth weights.
#include "atm/atm_internal.h"
#include "atm/traffic.h"

namespace {

using namespace vq::atm;

constexpr double kShaperCycles = 352.0;
constexpr double kShaperTickNs = 2816.0;

// 1e9 / 42: the CBR scheduler's clock in periods per second.
constexpr double kShVcClock = 23809523.80952381;
constexpr uint32_t kShVcRateMin = 6;
constexpr uint32_t kShVcRateMax = 2976191;
constexpr uint32_t kShVcPeriodMin = 6;
constexpr uint32_t kShVcPeriodMax = 3968252;
constexpr uint32_t kShVcClasses = 16;

bool shaperTable(uint32_t shaperClass, uint32_t *table, ShaperFields *fields) {
    switch (shaperClass) {
        case 2:
            *table = kRtVbrShap;
            *fields = kRtVbrShaper;
            return true;
        case 3:
            *table = kNrtVbrShap;
            *fields = kNrtVbrShaper;
            return true;
        case 4:
            *table = kUbrPlusShap;
            *fields = kUbrPlusShaper;
            return true;
        default:
            return false;
    }
}

// Descriptor types a shaper can follow.
bool shapingType(uint32_t type) {
    switch (type) {
        case 1:
        case 2:
        case 5:
        case 9:
        case 10:
        case 12:
        case 13:
            return true;
        default:
            return false;
    }
}

void convertOne(uint32_t chip, uint32_t type, uint32_t pcr, uint32_t scr, uint32_t cdvt, uint32_t mbs,
                ATM_BUCKET_PAIR *pair) {
    if (pair == nullptr) {
        VQ6192_Printf(chip, kModule, VQ6192_PRINT_PARA_WRONG, "ParaErr.\r\n");
        return;
    }
    if (shapingType(type)) {
        convert(type, pcr, scr, cdvt, mbs, true, pair);
    } else {
        *pair = ATM_BUCKET_PAIR{};
    }
}

uint32_t shVcIndex(uint32_t linePort, uint32_t cls) {
    return linePort * kShVcClasses + cls;
}

uint32_t writeShVcPeriod(uint32_t chip, uint32_t linePort, uint32_t cls, uint32_t period) {
    return modifyEntry(chip, kShVc, shVcIndex(linePort, cls),
                       [&](Entry &e) { e.set(kShVcPeriod, period & 0x3FFFFFu); });
}

}  // namespace

extern "C" {

VQ6192_API void VQ6192_ATM_ConvertShappingPara(uint32_t chip, uint32_t type, uint32_t PCR, uint32_t SCR,
                                               uint32_t CDVT, uint32_t MBS, ATM_BUCKET_PAIR *pair) {
    if (pair == nullptr || type > 16) {
        VQ6192_Printf(chip, kModule, VQ6192_PRINT_PARA_WRONG, "ParaErr.\r\n");
        return;
    }
    convertOne(chip, type, PCR, SCR, CDVT, MBS, pair);
}

#define VQ6192_ATM_CONVERT_SHAPING(n)                                                                       \
    VQ6192_API void VQ6192_ATM_ConvertShapping##n(uint32_t chip, uint32_t PCR, uint32_t SCR, uint32_t CDVT, \
                                                  uint32_t MBS, ATM_BUCKET_PAIR *pair) {                    \
        convertOne(chip, n, PCR, SCR, CDVT, MBS, pair);                                                     \
    }
VQ6192_ATM_CONVERT_SHAPING(2)
VQ6192_ATM_CONVERT_SHAPING(5)
VQ6192_ATM_CONVERT_SHAPING(9)
VQ6192_ATM_CONVERT_SHAPING(10)
VQ6192_ATM_CONVERT_SHAPING(12)
VQ6192_ATM_CONVERT_SHAPING(13)
#undef VQ6192_ATM_CONVERT_SHAPING

VQ6192_API uint32_t VQ6192_ATM_CalcShappingPara(uint32_t chip, const ATM_BUCKET_PAIR *pair, uint16_t out[6]) {
    if (pair == nullptr || out == nullptr) {
        return paraErr(chip);
    }
    bucketCodes(*pair, kShaperCycles, kShaperTickNs, out);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_VQ6192ShapingSet(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                                const ATM_BUCKET_PAIR *pair) {
    uint32_t table = 0;
    ShaperFields f{};
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || pair == nullptr ||
        !shaperTable(shaperClass, &table, &f)) {
        return paraErr(chip);
    }
    uint16_t c[6] = {};
    VQ6192_ATM_CalcShappingPara(chip, pair, c);
    return modifyEntry(chip, table, linePort, [&](Entry &e) {
        e.set(f.incr, c[1]);
        e.set(f.limit, c[2]);
        e.set(f.mode, c[0] != 0 ? 1 : 0);
    });
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmShapcfgQos(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                                const ATM_TRAFFIC_DESC *desc) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || shaperClass < 2 || shaperClass > 4 ||
        desc == nullptr || !shapingType(desc->type)) {
        return paraErr(chip);
    }
    ATM_BUCKET_PAIR pair{};
    VQ6192_ATM_ConvertShappingPara(chip, desc->type, desc->PCR, desc->SCR, desc->CDVT, desc->MBS, &pair);
    if (VQ6192_ATM_VQ6192ShapingSet(chip, linePort, shaperClass, &pair) != 0) {
        return stepErr(chip, "Err. VQ6192_ATM_SetAtmShapcfgQos: CONFIGURE error!  ChipID: %#x\r\n");
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmShapcfg(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                             const ATM_POLICING_CFG *rec) {
    uint32_t table = 0;
    ShaperFields f{};
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || rec == nullptr ||
        rec->wIncrA > 32767 || !shaperTable(shaperClass, &table, &f)) {
        return paraErr(chip);
    }
    const ATM_POLICING_CFG r = *rec;
    return modifyEntry(chip, table, linePort, [&](Entry &e) {
        e.set(f.incr, r.wIncrA);
        e.set(f.mode, r.wPAMode != 0 ? 1 : 0);
        e.set(f.limit, r.wLimitA & 0xFFu);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmShapcfg(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                             ATM_POLICING_CFG *rec) {
    uint32_t table = 0;
    ShaperFields f{};
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || rec == nullptr ||
        !shaperTable(shaperClass, &table, &f)) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, table, linePort, e);
    *rec = ATM_POLICING_CFG{};
    rec->wIncrA = static_cast<uint16_t>(e.get(f.incr));
    rec->wPAMode = static_cast<uint16_t>(e.get(f.mode));
    rec->wLimitA = static_cast<uint16_t>(e.get(f.limit));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmEbs(uint32_t chip, uint32_t linePort, const ATM_EBS_CFG *rec) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || rec == nullptr || rec->byVbrEn > 1 ||
        rec->byNvbrEn > 1) {
        return paraErr(chip);
    }
    const ATM_EBS_CFG r = *rec;
    return modifyEntry(chip, kEbs, linePort, [&](Entry &e) {
        e.set(kEbsRtVbrEn, r.byVbrEn);
        e.set(kEbsNrtVbrEn, r.byNvbrEn);
        e.set(kEbsRtVbr, r.wRtvbrWeight);
        e.set(kEbsNrtVbr, r.wNrtvbrWeight);
        e.set(kEbsUbrPlus, r.wUbrPlusWeight);
        e.set(kEbsUbr, r.wUbrWeight);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmEbs(uint32_t chip, uint32_t linePort, ATM_EBS_CFG *rec) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || rec == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kEbs, linePort, e);
    rec->byVbrEn = static_cast<uint8_t>(e.get(kEbsRtVbrEn));
    rec->byNvbrEn = static_cast<uint8_t>(e.get(kEbsNrtVbrEn));
    rec->wRtvbrWeight = static_cast<uint16_t>(e.get(kEbsRtVbr));
    rec->wNrtvbrWeight = static_cast<uint16_t>(e.get(kEbsNrtVbr));
    rec->wUbrPlusWeight = static_cast<uint16_t>(e.get(kEbsUbrPlus));
    rec->wUbrWeight = static_cast<uint16_t>(e.get(kEbsUbr));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmShVc(uint32_t chip, uint32_t linePort, uint32_t cls, uint32_t rate) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || cls >= kShVcClasses ||
        (rate != 0 && (rate < kShVcRateMin || rate > kShVcRateMax))) {
        return paraErr(chip);
    }
    uint32_t period = 0;
    if (rate != 0) {
        // The quotient is rounded to single precision before the half-period offset.
        const float quotient = static_cast<float>(kShVcClock / rate);
        period = static_cast<uint32_t>(static_cast<double>(quotient) - 1.5);
    }
    return writeShVcPeriod(chip, linePort, cls, period);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmShVc(uint32_t chip, uint32_t linePort, uint32_t cls,
                                          uint32_t *dwShvcCell) {
    if (dwShvcCell == nullptr) {
        return paraErr(chip);
    }
    uint32_t period = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmShVcPeriod(chip, linePort, cls, &period);
    if (rc == paraCode(chip)) {
        return rc;
    }
    *dwShvcCell = period == 0 ? 0 : static_cast<uint32_t>(kShVcClock / (period + 1));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmShVcByPeriod(uint32_t chip, uint32_t linePort, uint32_t cls,
                                                  uint32_t period) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || cls >= kShVcClasses ||
        (period != 0 && (period < kShVcPeriodMin || period > kShVcPeriodMax))) {
        return paraErr(chip);
    }
    return writeShVcPeriod(chip, linePort, cls, period);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmShVcPeriod(uint32_t chip, uint32_t linePort, uint32_t cls,
                                                uint32_t *period) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || cls >= kShVcClasses ||
        period == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kShVc, shVcIndex(linePort, cls), e);
    *period = e.get(kShVcPeriod);
    return rc;
}

}  // extern "C"
