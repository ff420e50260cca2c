// The timeslot tables: raw entry access, and the source selections that route E1/T1 timeslots, E3/T3
// and VC-4 payloads to service channels and clear them again.
#include "framer/framer_internal.h"
#include "framer/timeslot.h"
#include "vq6192/ppp.h"
#include "vq6192/table.h"

namespace vq::framer::ts {
namespace {

uint32_t tableOf(Kind kind, uint32_t dir) {
    if (kind == Kind::E1) {
        return dir == VQ6192_BASE_SRV_DIRECT_INGRESS ? kE1Ingress : kE1Egress;
    }
    return dir == VQ6192_BASE_SRV_DIRECT_INGRESS ? kHoIngress : kHoEgress;
}

}  // namespace

uint32_t writeEntry(uint32_t chip, Kind kind, uint32_t source, uint32_t timeslot, uint32_t dir,
                    uint32_t value) {
    const uint32_t entry = value & 0xFFFFu;
    for (uint32_t d : {VQ6192_BASE_SRV_DIRECT_INGRESS, VQ6192_BASE_SRV_DIRECT_EGRESS}) {
        if (dir == d || dir == VQ6192_BASE_SRV_DIRECT_BOTH) {
            const uint32_t rc = VQ6192_Write_Table(chip, tableOf(kind, d), index(source, timeslot), &entry);
            if (rc != 0) {
                return rc;
            }
        }
    }
    return 0;
}

uint32_t readEntry(uint32_t chip, Kind kind, uint32_t source, uint32_t timeslot, uint32_t dir,
                   uint32_t *value) {
    *value = 0;
    return VQ6192_Read_Table(chip, tableOf(kind, dir), index(source, timeslot), value);
}

}  // namespace vq::framer::ts

namespace {

using namespace vq::framer;
using namespace vq::framer::ts;

// Tsspeed of an interface speed: 0 16k, 1 32k, 3 64k, 4 8k; 2 has none.
constexpr uint32_t kSpeedField[] = {1, 2, 0xFF, 3, 0};

bool validVc4Channel(uint32_t svcChnl) {
    return svcChnl < 4 || svcChnl == 0x200 || svcChnl == 0x400 || svcChnl == 0x600;
}

// Entry of a VC-4 or E3/T3 service, without En and rate (they are added by the caller).
uint32_t vc4Channel(uint32_t chip, uint32_t svcChnl, uint32_t svcType) {
    switch (svcType) {
        case kSvcAtm:
            return (kModuleAtm << 13) | ((svcChnl * 84) & 0x7FCu);
        case kSvcCes:
            return (kModuleCes << 13) | ((svcChnl + kVc4SourceBase) & 0x7FFu);
        default:
            return (kModuleMlppp << 13) | (VQ6192_PPP_CalcPppChnl(chip, svcChnl, 0) & 0x7FFu);
    }
}

// Writes one entry to the E1/T1 timeslots of a bitmap, all of them even after a failure.
uint32_t writeTimeslots(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t tsBitmap, uint32_t entry,
                        const char *failure) {
    uint32_t failedStatus = 0;
    uint32_t failedTs = 0;
    for (uint32_t i = 0; i < kTimeslots; ++i) {
        if ((tsBitmap >> i & 1u) == 0) {
            continue;
        }
        const uint32_t rc = VQ6192_Framer_SetTSTab(chip, e1, dir, i, &entry);
        if (rc != 0) {
            failedStatus = rc;
            failedTs = i;
        }
    }
    if (failedStatus != 0) {
        VQ6192_FRM_TRACE(chip, failure, chip, e1, dir, failedTs, failedStatus);
        return status(chip, kErrSubOp);
    }
    return 0;
}

// Reads a VC-4 entry of both directions for the selections that leave the ingress enable alone.
bool readVc4Pair(uint32_t chip, uint32_t vc4, uint32_t *ingress, uint32_t *egress) {
    return VQ6192_Framer_GetVC4TSTab(chip, vc4, VQ6192_BASE_SRV_DIRECT_INGRESS, ingress) == 0 &&
           VQ6192_Framer_GetVC4TSTab(chip, vc4, VQ6192_BASE_SRV_DIRECT_EGRESS, egress) == 0;
}

// Writes the two VC-4 entries (ingress, then egress) and sets the egress enable for dir 1 or 2.
uint32_t writeVc4Pair(uint32_t chip, uint32_t dir, uint32_t vc4, uint32_t ingress, uint32_t egress,
                      uint32_t en) {
    const uint32_t rcIn = VQ6192_Framer_SetVC4TSTab(chip, vc4, VQ6192_BASE_SRV_DIRECT_INGRESS, &ingress);
    const uint32_t rcEg = VQ6192_Framer_SetVC4TSTab(chip, vc4, VQ6192_BASE_SRV_DIRECT_EGRESS, &egress);
    if (rcIn != 0 || rcEg != 0) {
        VQ6192_FRM_TRACE(chip, "Err. VQ6192_Framer_SelectSrcVC4.SetVC4TSTab(%u,%u,%u)       ErrCode[%#x]\r\n",
                         chip, vc4, dir, rcIn != 0 ? rcIn : rcEg);
        return status(chip, kErrState);
    }
    if ((dir == VQ6192_BASE_SRV_DIRECT_EGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH) &&
        VQ6192_Framer_SetTsVc4En(chip, VQ6192_BASE_SRV_DIRECT_EGRESS, vc4, en) != 0) {
        return status(chip, kErrSubOp);
    }
    return 0;
}

// Reads the entry of a high-order source for one direction, or both (which must agree; the egress one
// is returned).
uint32_t readHighOrder(uint32_t chip, uint32_t number, uint32_t source, uint32_t dir, uint32_t *entry,
                       const char *mismatch) {
    if (dir > VQ6192_BASE_SRV_DIRECT_BOTH) {
        return 0;
    }
    uint32_t ingress = 0;
    uint32_t egress = 0;
    if (dir != VQ6192_BASE_SRV_DIRECT_EGRESS &&
        readEntry(chip, Kind::HighOrder, source, 0, 0, &ingress) != 0) {
        return status(chip, kErrSubOp);
    }
    if (dir != VQ6192_BASE_SRV_DIRECT_INGRESS &&
        readEntry(chip, Kind::HighOrder, source, 0, 1, &egress) != 0) {
        return status(chip, kErrSubOp);
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_BOTH && ingress != egress) {
        VQ6192_FRM_TRACE(chip, mismatch, chip, number, dir);
        return status(chip, kErrState);
    }
    *entry = dir == VQ6192_BASE_SRV_DIRECT_INGRESS ? ingress : egress;
    return 0;
}

uint32_t tableWriteStatus(uint32_t chip, uint32_t rc) {
    return rc == 0 ? 0 : status(chip, kErrSubOp);
}

// Writes the entry of an E3/T3 or VC-4 source; a failure is traced with the operation's text
// (arguments chip, number, dir and the status) and reported as error 4.
uint32_t writeHighOrder(uint32_t chip, uint32_t sourceBase, uint32_t number, uint32_t dir, uint32_t entry,
                        const char *failure) {
    const uint32_t rc =
        tableWriteStatus(chip, writeEntry(chip, Kind::HighOrder, sourceBase + number, 0, dir, entry));
    if (rc != 0) {
        VQ6192_FRM_TRACE(chip, failure, chip, number, dir, rc);
    }
    return rc;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_Framer_SetTSTab(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t ts,
                                           const uint32_t *entry) {
    if (!vq::validChip(chip) || entry == nullptr) {
        return paraErr(chip);
    }
    return tableWriteStatus(chip, writeEntry(chip, Kind::E1, e1, ts, dir, *entry));
}

VQ6192_API uint32_t VQ6192_Framer_SetE3TSTab(uint32_t chip, uint32_t e3, uint32_t dir,
                                             const uint32_t *entry) {
    if (!vq::validChip(chip) || entry == nullptr) {
        return paraErr(chip);
    }
    return tableWriteStatus(chip, writeEntry(chip, Kind::HighOrder, kE3SourceBase + e3, 0, dir, *entry));
}

VQ6192_API uint32_t VQ6192_Framer_SetVC4TSTab(uint32_t chip, uint32_t vc4, uint32_t dir,
                                              const uint32_t *entry) {
    if (!vq::validChip(chip) || entry == nullptr) {
        return paraErr(chip);
    }
    return tableWriteStatus(chip, writeEntry(chip, Kind::HighOrder, kVc4SourceBase + vc4, 0, dir, *entry));
}

VQ6192_API uint32_t VQ6192_Framer_GetE3TSTab(uint32_t chip, uint32_t e3, uint32_t dir, uint32_t *entry) {
    if (!vq::validChip(chip) || entry == nullptr) {
        return paraErr(chip);
    }
    return readHighOrder(chip, e3, kE3SourceBase + e3, dir, entry,
                         "Err. VQ6192_Framer_GetE3TSTab(%u,%u,%u).aulIngData and aulEgData not equal\n");
}

VQ6192_API uint32_t VQ6192_Framer_GetVC4TSTab(uint32_t chip, uint32_t vc4, uint32_t dir, uint32_t *entry) {
    if (!vq::validChip(chip) || entry == nullptr) {
        return paraErr(chip);
    }
    return readHighOrder(chip, vc4, kVc4SourceBase + vc4, dir, entry,
                         "Err. VQ6192_Framer_GetVC4TSTab(%u,%u,%u).aulIngData and aulEgData not equal\n");
}

VQ6192_API uint32_t VQ6192_Framer_SelectSrcE1(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t svcChnl,
                                              uint32_t svcType, uint32_t tsBitmap, uint32_t speed) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || svcChnl >= VQ6192_NONE_SCH_PPP_MAX ||
        speed >= VQ6192_TS_SPEED_MAX || speed == 2 || svcType < kSvcPpp || svcType > kSvcNone) {
        return paraErr(chip);
    }
    uint32_t entry = 0;
    switch (svcType) {
        case kSvcAtm:
            entry = (kModuleAtm << 13) | svcChnl;
            break;
        case kSvcCes:
            entry = svcChnl | (g_uiPrbsFlag[chip] == 1 ? kCesPrbsBit : 0);
            break;
        case kSvcNone:
            entry = (kModuleNone << 13) | svcChnl;
            break;
        default:
            entry = (kModuleMlppp << 13) |
                    (VQ6192_PPP_CalcPppChnl(chip, svcChnl, dir == VQ6192_BASE_SRV_DIRECT_EGRESS ? 1 : 0) &
                     0x7FFu);
            break;
    }
    vq::setField(&entry, kTsspeed, kSpeedField[speed]);
    vq::setField(&entry, kEn, svcType == kSvcNone ? 0 : 1);
    return writeTimeslots(chip, dir, e1, tsBitmap, entry,
                          "Err. VQ6192_Framer_SelectSrcE1.SetTSTab(%u,%u,%u,%u)       ErrCode[%#x]\r\n");
}

VQ6192_API uint32_t VQ6192_Framer_DeleteSrcE1(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t tsBitmap) {
    if (!vq::validChip(chip) || dir > 3 || e1 >= VQ6192_FRM_E1_NUM) {
        return paraErr(chip);
    }
    return writeTimeslots(chip, dir, e1, tsBitmap, kCleared,
                          "Err. VQ6192_Framer_DeleteSrcE1.SetTSTab(%u,%u,%u,%u)       ErrCode[%#x]\r\n");
}

// The direction is not range-tested: other directions write nothing.
VQ6192_API uint32_t VQ6192_Framer_SelectSrcE3(uint32_t chip, uint32_t dir, uint32_t e3, uint32_t svcChnl,
                                              uint32_t svcType) {
    if (e3 >= VQ6192_FRM_E3_NUM || svcType < kSvcPpp || svcType > kSvcCes) {
        return paraErr(chip);
    }
    uint32_t entry = kEnabled64k;
    switch (svcType) {
        case kSvcAtm:
            entry |= (kModuleAtm << 13) | (svcChnl & 0x7FFu);
            break;
        case kSvcCes:
            entry |= (kModuleCes << 13) | ((svcChnl + kE3SourceBase) & 0x7FFu);
            break;
        default:
            entry |= (kModuleMlppp << 13) | (svcChnl & 0x7FFu);
            break;
    }
    return writeHighOrder(chip, kE3SourceBase, e3, dir, entry,
                          "Err. VQ6192_Framer_SelectSrcE3.SetE3TSTab(%u,%u,%u)       ErrCode[%#x]\r\n");
}

VQ6192_API uint32_t VQ6192_Framer_DeleteSrcE3(uint32_t chip, uint32_t dir, uint32_t e3) {
    if (!vq::validChip(chip) || dir > 3 || e3 >= VQ6192_FRM_E3_NUM) {
        return paraErr(chip);
    }
    return writeHighOrder(chip, kE3SourceBase, e3, dir, kCleared,
                          "Err. VQ6192_Framer_DeleteSrcE3.SetE3TSTab(%u,%u,%u)       ErrCode[%#x]\r\n");
}

// VC-4 v carries service channel v: the chip does not cross them.
VQ6192_API uint32_t VQ6192_Framer_SelectSrcVC4(uint32_t chip, uint32_t dir, uint32_t vc4, uint32_t svcChnl,
                                               uint32_t svcType) {
    if (vc4 >= 4 || !validVc4Channel(svcChnl) || svcType < kSvcPpp || svcType > kSvcCes) {
        return paraErr(chip);
    }
    return writeHighOrder(chip, kVc4SourceBase, vc4, dir, kEnabled64k | vc4Channel(chip, svcChnl, svcType),
                          "Err. VQ6192_Framer_SelectSrcVC4.SetVC4TSTab(%u,%u,%u)       ErrCode[%#x]\r\n");
}

VQ6192_API uint32_t VQ6192_Framer_DeleteSrcVC4(uint32_t chip, uint32_t dir, uint32_t vc4) {
    if (!vq::validChip(chip) || dir > 3 || vc4 >= 4) {
        return paraErr(chip);
    }
    return writeHighOrder(chip, kVc4SourceBase, vc4, dir, kCleared,
                          "Err. VQ6192_Framer_DeleteSrcVC4.SetVC4TSTab(%u,%u,%u)       ErrCode[%#x]\r\n");
}

VQ6192_API uint32_t VQ6192_Framer_SelectSrcVC4DisIngTs(uint32_t chip, uint32_t dir, uint32_t vc4,
                                                       uint32_t svcChnl, uint32_t svcType) {
    if (dir > VQ6192_BASE_SRV_DIRECT_BOTH || vc4 >= 4 || !validVc4Channel(svcChnl) || svcType < kSvcPpp ||
        svcType > kSvcCes) {
        return paraErr(chip);
    }
    uint32_t ingress = 0;
    uint32_t egress = 0;
    if (!readVc4Pair(chip, vc4, &ingress, &egress)) {
        return status(chip, kErrSubOp);
    }
    // Each keeps its enable; the rest is the service at 64 kbit/s.
    const uint32_t content = 0x1800u | vc4Channel(chip, svcChnl, svcType);
    return writeVc4Pair(chip, dir, vc4, (ingress & 0x8000u) | content, (egress & 0x8000u) | content, 1);
}

VQ6192_API uint32_t VQ6192_Framer_DeleteSrcVC4DisIngTs(uint32_t chip, uint32_t dir, uint32_t vc4) {
    if (!vq::validChip(chip) || dir > VQ6192_BASE_SRV_DIRECT_BOTH || vc4 >= 4) {
        return paraErr(chip);
    }
    uint32_t ingress = 0;
    uint32_t egress = 0;
    if (!readVc4Pair(chip, vc4, &ingress, &egress)) {
        return status(chip, kErrSubOp);
    }
    return writeVc4Pair(chip, dir, vc4, (ingress & 0x8000u) | kCleared, (egress & 0x8000u) | kCleared, 0);
}

// Read, replace the enable bit, write back for the same direction; for both directions the egress
// entry is written to both tables.
VQ6192_API uint32_t VQ6192_Framer_SetTsVc4En(uint32_t chip, uint32_t dir, uint32_t vc4, uint32_t en) {
    if (!vq::validChip(chip) || dir > VQ6192_BASE_SRV_DIRECT_BOTH || vc4 >= 4 || en > 1) {
        return paraErr(chip);
    }
    uint32_t entry = 0;
    uint32_t rc = VQ6192_Framer_GetVC4TSTab(chip, vc4, dir, &entry);
    if (rc != 0) {
        return rc;
    }
    vq::setField(&entry, kEn, en);
    rc = VQ6192_Framer_SetVC4TSTab(chip, vc4, dir, &entry);
    return rc;
}

VQ6192_API uint32_t VQ6192_Framer_GetTsVc4En(uint32_t chip, uint32_t dir, uint32_t vc4, uint16_t *en) {
    if (!vq::validChip(chip) || dir > VQ6192_BASE_SRV_DIRECT_BOTH || vc4 >= 4 || en == nullptr) {
        return paraErr(chip);
    }
    uint32_t entry = 0;
    const uint32_t rc = VQ6192_Framer_GetVC4TSTab(chip, vc4, dir, &entry);
    if (rc != 0) {
        return rc;
    }
    *en = static_cast<uint16_t>(vq::getField(&entry, kEn));
    return 0;
}

}  // extern "C"
