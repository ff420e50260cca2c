// Chip model of the E1/T1 and E3/T3 framers, from the chip's register map.
#include "vq6192/sim/framers.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kIngressBase = 0x24010;
constexpr uint32_t kEgressBase = 0x26010;
constexpr uint32_t kReframeBit = 1u << 2;
constexpr uint16_t kMfoofBit = 1u << 2;

uint32_t channelOffset(uint32_t vc4, uint32_t tug3, uint32_t tug2, uint32_t tu) {
    return 0x800 * vc4 + 0x200 * tug3 + 0x10 * (7 * tu + tug2);
}

void standardOf(uint32_t e1, uint32_t *vc4, uint32_t *tug3, uint32_t *tug2, uint32_t *tu) {
    *vc4 = e1 / 63;
    *tug3 = (e1 % 63) / 21;
    *tu = (e1 % 21) / 7;
    *tug2 = e1 % 7;
}

}  // namespace

uint32_t Framers::ingressAddr(uint32_t vc4, uint32_t tug3, uint32_t tug2, uint32_t tu, uint32_t word) {
    return kIngressBase + channelOffset(vc4, tug3, tug2, tu) + word;
}

uint32_t Framers::egressAddr(uint32_t vc4, uint32_t tug3, uint32_t tug2, uint32_t tu, uint32_t word) {
    return kEgressBase + channelOffset(vc4, tug3, tug2, tu) + word;
}

uint32_t Framers::ingressAddr(uint32_t e1, uint32_t word) {
    uint32_t v, k, l, m;
    standardOf(e1, &v, &k, &l, &m);
    return ingressAddr(v, k, l, m, word);
}

uint32_t Framers::egressAddr(uint32_t e1, uint32_t word) {
    uint32_t v, k, l, m;
    standardOf(e1, &v, &k, &l, &m);
    return egressAddr(v, k, l, m, word);
}

uint32_t Framers::et3Addr(uint32_t e3, Et3Reg reg) {
    switch (reg) {
        case kS0:
            return 0x2B60A + 0x20 * e3;
        case kS1:
            return 0x2B60C + 0x20 * e3;
        case kE3A:
            return 0x29294 + 0x10 * e3;
        case kE3D:
            return 0x29354 + 0x10 * e3;
        case kT3A:
            return 0x29444 + 0x20 * e3;
        case kT3D:
            return 0x295C4 + 0x20 * e3;
    }
    return 0;
}

uint32_t Framers::t3CounterAddr(uint32_t e3, bool dSide) {
    return (dSide ? 0x295C6 : 0x29446) + 0x20 * e3;
}

Framers::Framers(ChipModel &model) : model_(model) {
    for (uint32_t e1 = 0; e1 < multiframeFound_.size(); ++e1) {
        const uint32_t alarms = ingressAddr(e1, kIngAlarms);
        model_.onWrite(ingressAddr(e1, kIngMode), [this, e1, alarms](uint32_t, uint16_t value, uint16_t old) {
            if ((value & kReframeBit) != 0 && (old & kReframeBit) == 0) {
                reframes_[e1]++;
                const uint16_t status = model_.peek(alarms);
                model_.poke(alarms, static_cast<uint16_t>(multiframeFound_[e1] ? status & ~kMfoofBit
                                                                               : status | kMfoofBit));
            }
            return value;
        });
    }
}

void Framers::setMultiframeFound(uint32_t e1, bool found) {
    multiframeFound_.at(e1) = found;
}

}  // namespace vq6192::sim
