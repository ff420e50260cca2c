// Chip model: the E1/T1 and E3/T3 framers. Status and counter registers that tests set, alarm bits
// they raise, and the receive framer's answer to a reframe request: the multiframe out-of-frame bit
// follows whether the multiframe is found.
#pragma once

#include <array>
#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

class Framers : public ChipBlock {
  public:
    // Words of a channel's ingress and egress register blocks.
    enum IngressWord : uint32_t {
        kIngMode = 0,
        kIngAlarms = 2,
        kIngE1Crc = 4,
        kIngE1Febe = 6,
        kIngT1Crc = 8,
        kIngT1Ferr = 0xA
    };
    enum EgressWord : uint32_t { kEgMode = 0, kEgOverhead = 2, kEgOverhead2 = 4 };
    // E3/T3 status registers.
    enum Et3Reg : uint32_t { kS0, kS1, kE3A, kE3D, kT3A, kT3D };

    explicit Framers(ChipModel &model);

    // Register addresses of the E1/T1 channel with standard coordinates (VC-4, TUG-3, TUG-2, TU).
    static uint32_t ingressAddr(uint32_t vc4, uint32_t tug3, uint32_t tug2, uint32_t tu, uint32_t word);
    static uint32_t egressAddr(uint32_t vc4, uint32_t tug3, uint32_t tug2, uint32_t tu, uint32_t word);
    // The same by internal E1 number (63 per VC-4, 21 per TUG-3, TUG-2 running fastest within a TU).
    static uint32_t ingressAddr(uint32_t e1, uint32_t word);
    static uint32_t egressAddr(uint32_t e1, uint32_t word);
    static uint32_t et3Addr(uint32_t e3, Et3Reg reg);
    // First of the five counters of the receive (A) or transmit-side (D) T3 framer.
    static uint32_t t3CounterAddr(uint32_t e3, bool dSide);

    // A reframe request (ingress mode word bit 2 rising) sets the multiframe out-of-frame alarm unless
    // the multiframe is found.
    void setMultiframeFound(uint32_t e1, bool found);
    uint32_t reframes(uint32_t e1) const { return reframes_.at(e1); }

  private:
    ChipModel &model_;
    std::array<bool, 336> multiframeFound_{};
    std::array<uint32_t, 336> reframes_{};
};

}  // namespace vq6192::sim
