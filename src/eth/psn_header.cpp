// The packet-network header table: one entry per service (ATM pseudowires, PPP channels, multilink
// bundles, CES channels), filled field by field, and the encapsulation types built on it.
#include <array>
#include <cstring>

#include "eth/eth_util.h"

using namespace vq::eth;

namespace {

// First header entry and channel count of each service kind.
struct SrvSlice {
    uint32_t first;
    uint32_t count;
};
// clang-format off
constexpr SrvSlice kSlices[VQ6192_ETH_SRV_MAX] = {
    /* bundle */ {2560,  256},
    /* PPP    */ {2048,  512},
    /* ATM    */ {   0, 2048},
    /* CES    */ {2816,  352},
};

// The header fields in the order of the information record.
constexpr vq::EntryField kInfoFields[VQ6192_ETH_PSN_INFO_NUM] = {
    kHdReserved3, kHdEthType, kHdVlanId,  kHdEthDah,   kHdEthDal,    kHdGreProType,
    kHdIpDa,      kHdIpSa,    kHdIpProtcl, kHdIpTtl,   kHdIpTos,     kHdReserved2,
    kHdPwLabel,   kHdPwTtl,   kHdReserved1, kHdPwCos,  kHdReserved0, kHdType,
};
// clang-format on

// Fields whose selector may hold any value (the reserved fields and the GRE protocol type).
constexpr bool kFreeSelector[VQ6192_ETH_PSN_INFO_NUM] = {true,  false, false, false, false, true,
                                                         false, false, false, false, false, true,
                                                         false, false, true,  false, true,  false};

enum InfoIndex : uint32_t {
    kIEthType = 1,
    kIVlanId = 2,
    kIEthDah = 3,
    kIEthDal = 4,
    kIGreProType = 5,
    kIIpProtcl = 8,
    kIPwLabel = 12,
    kIHdType = 17,
};

using Words = std::array<uint32_t, VQ6192_ETH_PSN_INFO_NUM>;

Words words(const VQ6192_ETH_PSN_INFO_S &info) {
    Words w;
    static_assert(sizeof info == sizeof w);
    std::memcpy(w.data(), &info, sizeof info);
    return w;
}

VQ6192_ETH_PSN_INFO_S record(const Words &w) {
    VQ6192_ETH_PSN_INFO_S info;
    std::memcpy(&info, w.data(), sizeof info);
    return info;
}

bool convert(uint32_t ch, uint32_t type, uint32_t *idx) {
    if (type >= VQ6192_ETH_SRV_MAX || ch >= kSlices[type].count) {
        return false;
    }
    *idx = kSlices[type].first + ch;
    return true;
}

// Header type, Ethernet type and IP protocol register of the encapsulations 0..6 of ATM and CES
// services; a null protocol field leaves the IP protocol as it is, an Ethernet type of kKeep too.
constexpr uint32_t kKeep = UINT32_MAX;
struct Encapsulation {
    uint32_t hdType;
    uint32_t ethType;
    const Field *ipProto;
};
constexpr Encapsulation kEncaps[7] = {
    {0, kKeep, nullptr},      // remove
    {4, 0, nullptr},          // MPLS unicast
    {4, 1, nullptr},          // MPLS multicast
    {5, 2, &kIpProtoMplsIp},  // MPLS over IPv4
    {6, 2, &kIpProtoGre},     // MPLS over GRE over IPv4
    {7, 2, &kIpProtoUdp},     // UDP over IPv4, label = UDP destination port
    {4, 3, nullptr},          // MEF
};
constexpr uint32_t kEncapUdp = 5;
constexpr uint32_t kMaxLabel = 0xFFFFF;

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ETH_ConvertSrvChnl2EthChnl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                      uint32_t *ethChnl) {
    if (!vq::validChip(chip) || ethChnl == nullptr || !convert(ch, srvType, ethChnl)) {
        return ethParaErr(chip);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetPSNEthInfo(uint32_t chip, uint32_t ch, uint32_t srvType,
                                             const VQ6192_ETH_PSN_INFO_S *info) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || info == nullptr || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    const Words w = words(*info);
    Entry e;
    for (uint32_t k = 0; k < VQ6192_ETH_PSN_INFO_NUM; ++k) {
        setField(e.w, kInfoFields[k], w[k]);
    }
    return VQ6192_Write_Table(chip, kPsnHeaderTbl, idx, e.w);
}

VQ6192_API uint32_t VQ6192_ETH_GetPSNEthInfo(uint32_t chip, uint32_t ch, uint32_t srvType,
                                             VQ6192_ETH_PSN_INFO_S *info) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || info == nullptr || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    Entry e;
    const uint32_t rc = VQ6192_Read_Table(chip, kPsnHeaderTbl, idx, e.w);
    Words w{};
    for (uint32_t k = 0; k < VQ6192_ETH_PSN_INFO_NUM; ++k) {
        w[k] = getField(e.w, kInfoFields[k]);
    }
    *info = record(w);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_ModifyPSNEthInfo(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                const VQ6192_ETH_PSN_INFO_S *mask,
                                                const VQ6192_ETH_PSN_INFO_S *info) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || mask == nullptr || info == nullptr || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    const Words m = words(*mask);
    for (uint32_t k = 0; k < VQ6192_ETH_PSN_INFO_NUM; ++k) {
        if (!kFreeSelector[k] && m[k] > 1) {
            return ethParaErr(chip);
        }
    }
    const Words w = words(*info);
    return updateEntry(chip, kPsnHeaderTbl, idx, [&](uint32_t *e) {
        for (uint32_t k = 0; k < VQ6192_ETH_PSN_INFO_NUM; ++k) {
            // Only a selector of exactly 1 writes its field, also where other values pass the check.
            if (m[k] == 1) {
                setField(e, kInfoFields[k], w[k]);
            }
        }
    });
}

VQ6192_API uint32_t VQ6192_ETH_SetPSNEthIPAddr(uint32_t chip, uint32_t ch, uint32_t srvType, uint32_t ipSa,
                                               uint32_t ipDa) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    return updateEntry(chip, kPsnHeaderTbl, idx, [&](uint32_t *e) {
        setField(e, kHdIpSa, ipSa);
        setField(e, kHdIpDa, ipDa);
    });
}

VQ6192_API uint32_t VQ6192_ETH_SetIngVlanID(uint32_t chip, uint32_t srvType, uint32_t ch, uint32_t vlanId) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || ch >= 2048 || vlanId >= 4096 || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    return writeField(chip, kPsnHeaderTbl, idx, kHdVlanId, vlanId);
}

VQ6192_API uint32_t VQ6192_ETH_GetIngVlanID(uint32_t chip, uint32_t srvType, uint32_t ch, uint32_t *vlanId) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || vlanId == nullptr || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    return readField(chip, kPsnHeaderTbl, idx, kHdVlanId, vlanId);
}

VQ6192_API uint32_t VQ6192_ETH_SetSrvPktIngDA(uint32_t chip, uint32_t srvType, uint32_t ch, uint16_t macL,
                                              uint16_t macM, uint16_t macH) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    return updateEntry(chip, kPsnHeaderTbl, idx, [&](uint32_t *e) {
        setField(e, kHdEthDal, static_cast<uint32_t>(macM) << 16 | macL);
        setField(e, kHdEthDah, macH);
    });
}

VQ6192_API uint32_t VQ6192_ETH_SetAtmCesPMUEncpLbl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                   uint32_t encpType, uint32_t pwLabel, uint32_t inLabel) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || (srvType != VQ6192_ETH_SRV_ATM && srvType != VQ6192_ETH_SRV_CES) ||
        encpType > 6 || pwLabel > kMaxLabel || inLabel > kMaxLabel || !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    const Encapsulation &enc = kEncaps[encpType];
    Words mask{}, info{};
    mask[kIHdType] = 1;
    info[kIHdType] = enc.hdType;
    if (encpType != 0) {
        mask[kIPwLabel] = 1;
        info[kIPwLabel] = pwLabel;
    }
    if (enc.ethType != kKeep) {
        mask[kIEthType] = 1;
        info[kIEthType] = enc.ethType;
    }
    if (enc.ipProto != nullptr) {
        mask[kIIpProtcl] = 1;
        info[kIIpProtcl] = get(chip, *enc.ipProto);
    }
    const VQ6192_ETH_PSN_INFO_S m = record(mask), v = record(info);
    uint32_t rc = VQ6192_ETH_ModifyPSNEthInfo(chip, ch, srvType, &m, &v);
    rc |= VQ6192_ETH_SetAtmCesEgMpls2Chnl(chip, ch, srvType, inLabel, encpType == kEncapUdp ? 1 : 0,
                                          encpType == 0 ? 0 : 1);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_SetPppPMUEncpLbl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                uint32_t encpType, uint32_t pwLabel, uint32_t greProType) {
    uint32_t idx = 0;
    if (!vq::validChip(chip) || (srvType != VQ6192_ETH_SRV_MP && srvType != VQ6192_ETH_SRV_PPP) ||
        (encpType != 0 && encpType != 7 && encpType != 8) || pwLabel > kMaxLabel ||
        !convert(ch, srvType, &idx)) {
        return ethParaErr(chip);
    }
    if (encpType == 0) {
        return 0;
    }
    Words mask{}, info{};
    mask[kIHdType] = 1;
    mask[kIGreProType] = 1;
    info[kIGreProType] = greProType;
    if (encpType == 7) {
        info[kIHdType] = 2;
        mask[kIPwLabel] = 1;
        info[kIPwLabel] = pwLabel;
    } else {
        info[kIHdType] = 3;
        mask[kIEthType] = 1;
        info[kIEthType] = 0;
    }
    const VQ6192_ETH_PSN_INFO_S m = record(mask), v = record(info);
    return VQ6192_ETH_ModifyPSNEthInfo(chip, ch, srvType, &m, &v);
}

}  // extern "C"
