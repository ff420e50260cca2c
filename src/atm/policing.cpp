// ATM policing: traffic descriptors to dual leaky buckets (GCRA rates and tolerances in double
// precision), their mantissa/exponent codes for the 704 ns policer tick, and the policer entries.
#include <cmath>

#include "atm/atm_internal.h"
#include "atm/traffic.h"

namespace vq::atm {
namespace {

constexpr double kTolMax = 1696000000.0;
constexpr double kTolMin = 704.0;
constexpr double kDefaultCdv = 102400.0;
constexpr double kMargin = 1.8;
constexpr double kSlack = 100000.0;

double cellInterval(double rate) {
    return 1e9 / rate;
}

double clampTol(double t) {
    if (t > kTolMax) {
        return kTolMax;
    }
    if (t < kTolMin) {
        return kTolMin;
    }
    return t;
}

// Tolerance of the peak rate; `cdv` is the descriptor's CDVT in ns, or the default for types without.
double pcrTolerance(double pcr, double cdv, bool given) {
    double d = given ? cdv * kMargin : kDefaultCdv;
    if (cellInterval(pcr) > d) {
        d = cellInterval(pcr) + kSlack;
    }
    return clampTol(d);
}

// Burst tolerance of the sustainable rate.
double burstTolerance(double pcr, double scr, double mbs, double cdv) {
    double b = ((mbs - 1.0) * (1.0 / scr - 1.0 / pcr) * 1e9 + cdv) * kMargin;
    if (cellInterval(scr) > b) {
        b = cellInterval(scr) + kSlack;
    }
    return clampTol(b);
}

void setA(ATM_BUCKET_PAIR *p, double rate, double tol, uint16_t mode) {
    p->dRateA = rate;
    p->dTolA = tol;
    p->wModeA = mode;
}

void setB(ATM_BUCKET_PAIR *p, double rate, double tol, uint16_t mode) {
    p->dRateB = rate;
    p->dTolB = tol;
    p->wModeB = mode;
}

// The code of one value: (mantissa << 5 | exponent).
uint32_t code(double value, uint32_t base) {
    uint16_t mantissa = 0;
    uint16_t exponent = 0;
    VQ6192_ATM_GetExponent(0, &mantissa, &exponent, base, value);
    return static_cast<uint32_t>(mantissa) << 5 | exponent;
}

}  // namespace

bool convert(uint32_t type, uint32_t pcrIn, uint32_t scrIn, uint32_t cdvtIn, uint32_t mbsIn, bool shaping,
             ATM_BUCKET_PAIR *p) {
    const double pcr = pcrIn;
    const double scr = scrIn;  // the CLP=0 peak rate for types 3 and 4
    const double mbs = mbsIn;
    // CDVT counts in units of 100 ns.
    const double cdv = cdvtIn * 1000.0 / 10.0;
    *p = ATM_BUCKET_PAIR{};
    switch (type) {
        case 2:
            setA(p, pcr, shaping ? clampTol(cellInterval(pcr)) : cellInterval(pcr), kModeDropAll);
            return true;
        case 3:
        case 4:
            setA(p, pcr, clampTol(cellInterval(pcr)), kModeDropAll);
            setB(p, scr, clampTol(cellInterval(scr)), type == 3 ? kModeDrop0 : kModeTag0);
            return true;
        case 5:
        case 6:
            setA(p, scr, burstTolerance(pcr, scr, mbs, kDefaultCdv), type == 5 ? kModeDropAll : kModeDrop0);
            setB(p, pcr, pcrTolerance(pcr, 0, false), kModeDropAll);
            return true;
        case 7:
            setA(p, pcr, pcrTolerance(pcr, 0, false), kModeDropAll);
            setB(p, scr, burstTolerance(pcr, scr, mbs, kDefaultCdv), kModeTag0);
            return true;
        case 9:
        case 12:
            setA(p, pcr, pcrTolerance(pcr, cdv, true), kModeDropAll);
            return true;
        case 11:
            setA(p, pcr, pcrTolerance(pcr, cdv, true), kModeDropAll);
            setB(p, pcr, pcrTolerance(pcr, cdv, true), kModeTagAll);
            return true;
        case 10:
        case 13:
        case 14:
            setA(p, scr, burstTolerance(pcr, scr, mbs, cdv), type == 14 ? kModeDrop0 : kModeDropAll);
            setB(p, pcr, pcrTolerance(pcr, cdv, true), kModeDropAll);
            return true;
        case 15:
            setA(p, pcr, pcrTolerance(pcr, cdv, true), kModeDropAll);
            setB(p, scr, burstTolerance(pcr, scr, mbs, cdv), kModeTag0);
            return true;
        default:
            return false;
    }
}

void bucketCodes(const ATM_BUCKET_PAIR &pair, double cyclesPerTick, double tickNs, uint16_t out[6]) {
    auto bucket = [&](uint16_t mode, double rate, double tol, uint16_t *o) {
        o[0] = mode;
        o[1] = 0;
        o[2] = 0;
        if (VQ6192_ATM_CheckDoubleNotZero(rate) == 0 || mode < kModeTagAll || mode > kModeDropAll) {
            return;
        }
        o[1] = static_cast<uint16_t>(code(125000000.0 / (rate * cyclesPerTick), 1024) & 0x7FFFu);
        o[2] = static_cast<uint16_t>(code(tol / tickNs, 8) & 0xFFu);
    };
    bucket(pair.wModeA, pair.dRateA, pair.dTolA, out);
    bucket(pair.wModeB, pair.dRateB, pair.dTolB, out + 3);
}

}  // namespace vq::atm

namespace {

using namespace vq::atm;

constexpr double kPolicerCycles = 88.0;
constexpr double kPolicerTickNs = 704.0;
// Bucket A never tolerates less than 1280 policer ticks.
constexpr double kMinTolA = 901120.0;

void missingRecord(uint32_t chip) {
    VQ6192_Printf(chip, kModule, VQ6192_PRINT_PARA_WRONG, "ParaErr.\r\n");
}

void convertOne(uint32_t chip, uint32_t type, uint32_t pcr, uint32_t scr, uint32_t cdvt, uint32_t mbs,
                ATM_BUCKET_PAIR *pair) {
    if (pair == nullptr) {
        missingRecord(chip);
        return;
    }
    convert(type, pcr, scr, cdvt, mbs, false, pair);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_CheckDoubleNotZero(double value) {
    return value != 0.0 ? 1u : 0u;  // +0.0 and -0.0 are both zero
}

VQ6192_API void VQ6192_ATM_Calibrate_CDVT_BT(uint32_t chip, double *tolerance) {
    if (tolerance == nullptr) {
        missingRecord(chip);
        return;
    }
    if (*tolerance > 1696000000.0) {
        *tolerance = 1696000000.0;
    } else if (*tolerance < 704.0) {
        *tolerance = 704.0;
    }
}

VQ6192_API uint32_t VQ6192_ATM_GetExponent(uint32_t chip, uint16_t *mantissa, uint16_t *exponent,
                                           uint32_t base, double value) {
    if (mantissa == nullptr || exponent == nullptr) {
        return paraErr(chip);
    }
    uint32_t e = 0;
    // Bounded: an infinite value would halve for ever.
    while (value >= 2.0 && e < 2048) {
        value /= 2.0;
        ++e;
    }
    // Below 1.0 the mantissa is negative: its low bits are kept, as the chip's field takes them.
    const double m = (value - 1.0) * base;
    *mantissa = std::isfinite(m) ? static_cast<uint16_t>(static_cast<int32_t>(m)) : 0;
    *exponent = static_cast<uint16_t>(e);
    return 0;
}

VQ6192_API void VQ6192_ATM_ConvertPolicingPara(uint32_t chip, uint32_t type, uint32_t PCR, uint32_t SCR,
                                               uint32_t CDVT, uint32_t MBS, ATM_BUCKET_PAIR *pair) {
    if (pair == nullptr || type > 16) {
        missingRecord(chip);
        return;
    }
    convertOne(chip, type, PCR, SCR, CDVT, MBS, pair);
}

#define VQ6192_ATM_CONVERT_POLICING(n)                                                                      \
    VQ6192_API void VQ6192_ATM_ConvertPolicing##n(uint32_t chip, uint32_t PCR, uint32_t SCR, uint32_t CDVT, \
                                                  uint32_t MBS, ATM_BUCKET_PAIR *pair) {                    \
        convertOne(chip, n, PCR, SCR, CDVT, MBS, pair);                                                     \
    }
VQ6192_ATM_CONVERT_POLICING(2)
VQ6192_ATM_CONVERT_POLICING(3)
VQ6192_ATM_CONVERT_POLICING(4)
VQ6192_ATM_CONVERT_POLICING(5)
VQ6192_ATM_CONVERT_POLICING(6)
VQ6192_ATM_CONVERT_POLICING(7)
VQ6192_ATM_CONVERT_POLICING(9)
VQ6192_ATM_CONVERT_POLICING(10)
VQ6192_ATM_CONVERT_POLICING(11)
VQ6192_ATM_CONVERT_POLICING(12)
VQ6192_ATM_CONVERT_POLICING(13)
VQ6192_ATM_CONVERT_POLICING(14)
VQ6192_ATM_CONVERT_POLICING(15)
#undef VQ6192_ATM_CONVERT_POLICING

VQ6192_API uint32_t VQ6192_ATM_CalcPolicingPara(uint32_t chip, const ATM_BUCKET_PAIR *pair, uint16_t out[6]) {
    if (pair == nullptr || out == nullptr) {
        return paraErr(chip);
    }
    bucketCodes(*pair, kPolicerCycles, kPolicerTickNs, out);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_VQ6192PoliceSet(uint32_t chip, uint32_t policingId,
                                               const ATM_BUCKET_PAIR *pair) {
    if (!vq::validChip(chip) || policingId >= 8192 || pair == nullptr) {
        return paraErr(chip);
    }
    ATM_BUCKET_PAIR p = *pair;
    if (p.dTolA <= kMinTolA) {
        p.dTolA = kMinTolA;
    }
    uint16_t c[6] = {};
    VQ6192_ATM_CalcPolicingPara(chip, &p, c);
    return modifyEntry(chip, kPolCfg, policingId, [&](Entry &e) {
        e.set(kPolIncrA, c[1]);
        e.set(kPolModeA, c[0]);
        e.set(kPolLimitA, c[2]);
        e.set(kPolIncrB, c[4]);
        e.set(kPolModeB, c[3]);
        e.set(kPolLimitB, c[5]);
    });
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPolcfgQos(uint32_t chip, uint32_t policingId,
                                               const ATM_TRAFFIC_DESC *desc) {
    if (!vq::validChip(chip) || policingId >= 8192 || desc == nullptr || desc->type < 1 || desc->type > 15) {
        return paraErr(chip);
    }
    ATM_BUCKET_PAIR pair{};
    VQ6192_ATM_ConvertPolicingPara(chip, desc->type, desc->PCR, desc->SCR, desc->CDVT, desc->MBS, &pair);
    if (VQ6192_ATM_VQ6192PoliceSet(chip, policingId, &pair) != 0) {
        return stepErr(chip, "Err. VQ6192_ATM_SetAtmPolcfgQos: CONFIGURE error!  ChipID: %#x\r\n");
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPolcfg(uint32_t chip, uint32_t policingId, const ATM_POLICING_CFG *rec) {
    if (!vq::validChip(chip) || policingId >= 8192 || rec == nullptr || rec->wIncrA > 32767 ||
        rec->wIncrB > 32767 || rec->wLimitA >= 256 || rec->wLimitB >= 256 || rec->wPAMode >= 8 ||
        rec->wPBMode >= 8) {
        return paraErr(chip);
    }
    const ATM_POLICING_CFG r = *rec;
    return modifyEntry(chip, kPolCfg, policingId, [&](Entry &e) {
        e.set(kPolIncrA, r.wIncrA);
        e.set(kPolModeA, r.wPAMode);
        e.set(kPolLimitA, r.wLimitA);
        e.set(kPolIncrB, r.wIncrB);
        e.set(kPolModeB, r.wPBMode);
        e.set(kPolLimitB, r.wLimitB);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPolcfg(uint32_t chip, uint32_t policingId, ATM_POLICING_CFG *rec) {
    if (!vq::validChip(chip) || policingId >= 8192 || rec == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kPolCfg, policingId, e);
    rec->wIncrA = static_cast<uint16_t>(e.get(kPolIncrA));
    rec->wPAMode = static_cast<uint16_t>(e.get(kPolModeA));
    rec->wLimitA = static_cast<uint16_t>(e.get(kPolLimitA));
    rec->wIncrB = static_cast<uint16_t>(e.get(kPolIncrB));
    rec->wPBMode = static_cast<uint16_t>(e.get(kPolModeB));
    rec->wLimitB = static_cast<uint16_t>(e.get(kPolLimitB));
    return rc;
}

VQ6192_API double VQ6192_ATM_ComputeAtmPolCdvt(uint32_t chip, uint32_t rate) {
    double t = rate <= 1024 ? 1e9 / rate : (1.0 - rate * 704.0 / 1e9) * 56320.0;
    VQ6192_ATM_Calibrate_CDVT_BT(chip, &t);
    return t;
}

VQ6192_API double VQ6192_ATM_ComputeAtmPolMbs(uint32_t chip, uint32_t rate, double tolerance) {
    const double base = rate <= 1024 ? 1e9 / rate : (1.0 - rate * 704.0 / 1e9) * 56320.0;
    double t = tolerance * 1.1 > base ? tolerance * 1.1 : base;
    VQ6192_ATM_Calibrate_CDVT_BT(chip, &t);
    return t;
}

}  // extern "C"
