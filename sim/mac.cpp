// The two Ethernet MACs' register files, reached through the Ethernet lookup block's tables.
#include "vq6192/sim/mac.h"

#include <stdexcept>

namespace vq6192::sim {
namespace {

uint32_t selectOf(uint32_t mac) {
    if (mac != 1 && mac != 2) {
        throw std::invalid_argument("MAC numbers are 1 and 2");
    }
    return mac == 1 ? MacBlock::kMac1Select : MacBlock::kMac2Select;
}

}  // namespace

uint32_t MacBlock::reg(uint32_t mac, uint32_t n) const {
    const TableEngine::Entry e = model_.tables().entry(kLookupBlock, selectOf(mac), n);
    return static_cast<uint32_t>(e[1]) << 16 | e[0];
}

void MacBlock::setReg(uint32_t mac, uint32_t n, uint32_t value) {
    TableEngine::Entry e = model_.tables().entry(kLookupBlock, selectOf(mac), n);
    e[0] = static_cast<uint16_t>(value);
    e[1] = static_cast<uint16_t>(value >> 16);
    model_.tables().setEntry(kLookupBlock, selectOf(mac), n, e);
}

void MacBlock::setLinkUp(uint32_t mac, bool up) {
    const uint32_t v = reg(mac, 22);
    setReg(mac, 22, up ? v | (1u << kLinkUpBit) : v & ~(1u << kLinkUpBit));
}

}  // namespace vq6192::sim
