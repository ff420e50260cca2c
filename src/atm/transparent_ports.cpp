// ATM ports: enables and UNI/NNI attribute, port-transparent mappings of a line port onto a system
// port, and the line-port loop.
#include "atm/atm_internal.h"

namespace {

using namespace vq::atm;

constexpr uint32_t kThMax = 0x7FFFF;

bool thresholdsLegal(const uint32_t th[3]) {
    return th != nullptr && th[0] <= kThMax && th[1] <= kThMax && th[2] <= kThMax;
}

// Port queue of a transparent or looped line port: bound to its port, not deleted.
uint32_t bindPortQueue(uint32_t chip, uint32_t linePort) {
    return modifyEntry(chip, kLinkQm, kPortQueueBase + linePort, [&](Entry &e) {
        e.set(kQmPort, linePort);
        e.set(kQmSta, 0);
    });
}

// th = {pause, pause cancel, drop}; the bits above the three thresholds keep their value.
uint32_t writeThresholds(uint32_t chip, uint32_t linePort, const uint32_t th[3]) {
    return modifyEntry(chip, kBmFifo, linePort, [&](Entry &e) {
        e.set(kBmFifoPause, th[0]);
        e.set(kBmFifoCancel, th[1]);
        e.set(kBmFifoDrop, th[2]);
    });
}

uint32_t clearThresholds(uint32_t chip, uint32_t linePort) {
    constexpr uint32_t kNone[3] = {0, 0, 0};
    return writeThresholds(chip, linePort, kNone);
}

uint32_t mapLinePort(uint32_t chip, uint32_t linePort, uint32_t systemPort) {
    return modifyEntry(chip, kLpct, linePort, [&](Entry &e) {
        e.set(kLpctPortmap, 1);
        e.set(kLpctPorten, 1);
        e.set(kLpctLoopout, 0);
        e.set(kLpctPwindex, systemPort);
    });
}

uint32_t mapSystemPort(uint32_t chip, uint32_t systemPort, uint32_t linePort) {
    return modifyEntry(chip, kSpct, systemPort, [&](Entry &e) {
        e.set(kSpctPortmap, 1);
        e.set(kSpctPorten, 1);
        e.set(kSpctOutport, linePort);
    });
}

uint32_t unmapLinePort(uint32_t chip, uint32_t linePort) {
    return modifyEntry(chip, kLpct, linePort, [](Entry &e) {
        e.set(kLpctPortmap, 0);
        e.set(kLpctPorten, 0);
        e.set(kLpctPwindex, 0);
    });
}

uint32_t unmapSystemPort(uint32_t chip, uint32_t systemPort) {
    return modifyEntry(chip, kSpct, systemPort, [](Entry &e) {
        e.set(kSpctPortmap, 0);
        e.set(kSpctPorten, 0);
        e.set(kSpctOutport, 0);
    });
}

// Flushes the line port's queue; only a clean flush frees its thresholds.
uint32_t releaseLinePort(uint32_t chip, uint32_t linePort, uint32_t rc) {
    rc |= VQ6192_ATM_DelAtmBwdQm(chip, linePort, 0);
    if (rc != 0) {
        return paraCode(chip);
    }
    return clearThresholds(chip, linePort);
}

struct PortTable {
    uint32_t table;
    vq::EntryField field;
};

bool portField(uint32_t port, uint32_t side, vq::EntryField lineField, vq::EntryField sysField,
               PortTable *out) {
    if (side == 0 && port < VQ6192_ATM_LINE_PORT_NUM) {
        *out = {kLpct, lineField};
        return true;
    }
    if (side == 1 && port < VQ6192_ATM_SYS_PORT_NUM) {
        *out = {kSpct, sysField};
        return true;
    }
    return false;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_SetAtmPortEn(uint32_t chip, uint32_t port, uint32_t side, uint32_t byEnable) {
    if (!vq::validChip(chip) || side > 2 || byEnable > 1 || port >= VQ6192_ATM_SYS_PORT_NUM) {
        return paraErr(chip);
    }
    PortTable t{};
    if (side == 2) {
        return paraCode(chip);  // a side the switch does not have: refused without a trace
    }
    if (!portField(port, side, kLpctPorten, kSpctPorten, &t)) {
        return paraErr(chip);
    }
    return modifyEntry(chip, t.table, port, [&](Entry &e) { e.set(t.field, byEnable); });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPortEnStat(uint32_t chip, uint32_t port, uint32_t side,
                                                uint8_t *byEnable) {
    if (!vq::validChip(chip) || side > 2 || byEnable == nullptr || port >= VQ6192_ATM_SYS_PORT_NUM) {
        return paraErr(chip);
    }
    PortTable t{};
    if (side == 2) {
        return paraCode(chip);
    }
    if (!portField(port, side, kLpctPorten, kSpctPorten, &t)) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, t.table, port, e);
    *byEnable = static_cast<uint8_t>(e.get(t.field));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPortType(uint32_t chip, uint32_t port, uint32_t side,
                                              uint32_t byUniFlag) {
    PortTable t{};
    if (!vq::validChip(chip) || byUniFlag > 1 || !portField(port, side, kLpctNetattr, kSpctNetattr, &t)) {
        return paraErr(chip);
    }
    return modifyEntry(chip, t.table, port, [&](Entry &e) { e.set(t.field, byUniFlag); });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPortType(uint32_t chip, uint32_t port, uint32_t side,
                                              uint8_t *byUniFlag) {
    PortTable t{};
    if (!vq::validChip(chip) || byUniFlag == nullptr ||
        !portField(port, side, kLpctNetattr, kSpctNetattr, &t)) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, t.table, port, e);
    *byUniFlag = static_cast<uint8_t>(e.get(t.field));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_AddAtmTransConn(uint32_t chip, uint32_t linePort, uint32_t systemPort,
                                               const uint32_t th[3]) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM ||
        systemPort >= VQ6192_ATM_SYS_PORT_NUM || !thresholdsLegal(th)) {
        return paraErr(chip);
    }
    uint32_t rc = bindPortQueue(chip, linePort);
    rc |= writeThresholds(chip, linePort, th);
    rc |= mapLinePort(chip, linePort, systemPort);
    rc |= mapSystemPort(chip, systemPort, linePort);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_AddAtmTransConnSingle(uint32_t chip, uint32_t port, uint32_t peerPort,
                                                     uint32_t side, const uint32_t th[3]) {
    if (!vq::validChip(chip) || th == nullptr) {
        return paraErr(chip);
    }
    if (side == 0 && port < VQ6192_ATM_LINE_PORT_NUM && peerPort < VQ6192_ATM_SYS_PORT_NUM) {
        return mapLinePort(chip, port, peerPort);
    }
    if (side == 1 && port < VQ6192_ATM_SYS_PORT_NUM && peerPort < VQ6192_ATM_LINE_PORT_NUM &&
        thresholdsLegal(th)) {
        uint32_t rc = bindPortQueue(chip, peerPort);
        rc |= writeThresholds(chip, peerPort, th);
        rc |= mapSystemPort(chip, port, peerPort);
        return rc;
    }
    return paraErr(chip);
}

VQ6192_API uint32_t VQ6192_ATM_DelAtmTransConn(uint32_t chip, uint32_t linePort, uint32_t systemPort) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM ||
        systemPort >= VQ6192_ATM_SYS_PORT_NUM) {
        return paraErr(chip);
    }
    uint32_t rc = unmapLinePort(chip, linePort);
    rc |= unmapSystemPort(chip, systemPort);
    return releaseLinePort(chip, linePort, rc);
}

VQ6192_API uint32_t VQ6192_ATM_DelAtmTransConnSingle(uint32_t chip, uint32_t port, uint32_t side) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    if (side == 0 && port < VQ6192_ATM_LINE_PORT_NUM) {
        return unmapLinePort(chip, port);
    }
    if (side == 1 && port < VQ6192_ATM_SYS_PORT_NUM) {
        Entry e;
        uint32_t rc = readEntry(chip, kSpct, port, e);
        const uint32_t linePort = e.get(kSpctOutport);
        rc |= unmapSystemPort(chip, port);
        return releaseLinePort(chip, linePort, rc);
    }
    return paraErr(chip);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmTransConnSingle(uint32_t chip, uint32_t port, uint32_t side,
                                                     uint8_t *byPortMap, uint16_t *wDstPort) {
    PortTable map{};
    if (!vq::validChip(chip) || byPortMap == nullptr || wDstPort == nullptr ||
        !portField(port, side, kLpctPortmap, kSpctPortmap, &map)) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, map.table, port, e);
    *byPortMap = static_cast<uint8_t>(e.get(map.field));
    *wDstPort = static_cast<uint16_t>(e.get(side == 0 ? kLpctPwindex : kSpctOutport));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmTransFiFo(uint32_t chip, uint32_t linePort, uint32_t th[3]) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || th == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kBmFifo, linePort, e);
    th[0] = e.get(kBmFifoPause);
    th[1] = e.get(kBmFifoCancel);
    th[2] = e.get(kBmFifoDrop);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPortLoopMode(uint32_t chip, uint32_t linePort, const uint32_t th[3]) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || !thresholdsLegal(th)) {
        return paraErr(chip);
    }
    uint32_t rc = bindPortQueue(chip, linePort);
    rc |= writeThresholds(chip, linePort, th);
    rc |= modifyEntry(chip, kLpct, linePort, [](Entry &e) {
        e.set(kLpctLoopout, 1);
        e.set(kLpctPorten, 1);
    });
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_DelAtmPortLoopMode(uint32_t chip, uint32_t linePort) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM) {
        return paraErr(chip);
    }
    uint32_t rc = modifyEntry(chip, kLpct, linePort, [](Entry &e) {
        e.set(kLpctLoopout, 0);
        e.set(kLpctPorten, 0);
    });
    rc |= VQ6192_ATM_DelAtmBwdQm(chip, linePort, 0);
    rc |= clearThresholds(chip, linePort);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPortLoopMode(uint32_t chip, uint32_t linePort, uint8_t *byLoop) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || byLoop == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kLpct, linePort, e);
    *byLoop = static_cast<uint8_t>(e.get(kLpctLoopout));
    return rc;
}

}  // extern "C"
