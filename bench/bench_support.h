// Chips for the benchmarks: one on a plain array (memory-mapped path), one on the chip model (host
// functions).
#pragma once

#include <vector>

#include "vq6192/sim.h"
#include "vq6192/vq6192.h"

namespace vqbench {

constexpr uint32_t kChip = 0;

struct MappedChip {
    std::vector<uint16_t> space = std::vector<uint16_t>(0x10000, 0);
    MappedChip() {
        VQ6192_INSTALL_PARA p{};
        p.ulChipId = kChip;
        p.ulBaseAddr = reinterpret_cast<uintptr_t>(space.data());
        VQ6192_Install_SDK(&p);
    }
    ~MappedChip() { VQ6192_UnInstall_SDK(kChip); }
};

struct ModelChip {
    vq6192::sim::ChipModel model;
    ModelChip() {
        model.attach(kChip);
        VQ6192_INSTALL_PARA p = model.installPara(kChip);
        VQ6192_Install_SDK(&p);
    }
    ~ModelChip() { VQ6192_UnInstall_SDK(kChip); }
};

}  // namespace vqbench
