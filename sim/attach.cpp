// Attaching a model to a chip id: the host register functions, the arbitration and card-present
// hooks, and the indirect path, all leading back to the model.
#include "vq6192/sim.h"

namespace vq6192::sim {
namespace {

ChipModel *g_models[VQ6192_CHIP_RECORD_NUM] = {};

void hostWrite(uint32_t chip, uint32_t addr, uint32_t value) {
    if (ChipModel *m = ChipModel::attached(chip)) {
        m->busWrite(addr, static_cast<uint16_t>(value));
    }
}

uint32_t hostRead(uint32_t chip, uint32_t addr) {
    ChipModel *m = ChipModel::attached(chip);
    return m != nullptr ? m->busRead(addr) : 0;
}

void hostWriteField(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit, uint32_t width) {
    if (ChipModel *m = ChipModel::attached(chip)) {
        m->busWriteField(addr, value, startBit, width);
    }
}

uint32_t hostReadField(uint32_t chip, uint32_t addr, uint32_t startBit, uint32_t width) {
    ChipModel *m = ChipModel::attached(chip);
    return m != nullptr ? m->busReadField(addr, startBit, width) : 0;
}

}  // namespace

ChipModel *ChipModel::attached(uint32_t chip) {
    return chip < VQ6192_CHIP_RECORD_NUM ? g_models[chip] : nullptr;
}

void ChipModel::attach(uint32_t chip) {
    detach();
    if (chip >= VQ6192_CHIP_RECORD_NUM) {
        return;
    }
    chip_ = chip;
    g_models[chip] = this;
    VQ6192_Init_ReadWriFun(chip, hostWrite, hostRead, hostWriteField, hostReadField);
}

void ChipModel::detach() {
    if (chip_ < VQ6192_CHIP_RECORD_NUM && g_models[chip_] == this) {
        g_models[chip_] = nullptr;
        VQ6192_Init_ReadWriFun(chip_, nullptr, nullptr, nullptr, nullptr);
    }
    chip_ = UINT32_MAX;
}

VQ6192_INSTALL_PARA ChipModel::installPara(uint32_t chip, bool indirect) const {
    VQ6192_INSTALL_PARA para{};
    para.ulChipId = chip;
    para.pfnGetArbitrate = hookGetArbitrate;
    para.pfnGiveArbitrate = hookGiveArbitrate;
    para.pfnCardPresent = hookCardPresent;
    para.pfnIndirectWrite16 = indirectWrite16;
    para.pfnIndirectRead16 = indirectRead16;
    para.ulIndirectHandle = reinterpret_cast<uintptr_t>(this);
    para.ulRegIndirectFlag = indirect ? 1 : 0;
    return para;
}

uint32_t ChipModel::hookGetArbitrate(uint32_t chip) {
    ChipModel *m = attached(chip);
    if (m == nullptr) {
        return 0;
    }
    if (m->refuseArbitration_ > 0) {
        m->refuseArbitration_--;
        return 1;
    }
    m->arbitrationsTaken_++;
    return 0;
}

uint32_t ChipModel::hookGiveArbitrate(uint32_t chip) {
    if (ChipModel *m = attached(chip)) {
        m->arbitrationsGiven_++;
    }
    return 0;
}

uint32_t ChipModel::hookCardPresent(uint32_t chip) {
    ChipModel *m = attached(chip);
    if (m == nullptr) {
        return 1;
    }
    m->cardPresentAsked_++;
    return m->cardPresent_ ? 1 : 0;
}

uint32_t ChipModel::indirectWrite16(uintptr_t handle, uint32_t offset, uint16_t value) {
    reinterpret_cast<ChipModel *>(handle)->busWrite(offset, value);
    return 0;
}

uint32_t ChipModel::indirectRead16(uintptr_t handle, uint32_t offset, uint16_t *value) {
    uint16_t v = reinterpret_cast<ChipModel *>(handle)->busRead(offset);
    if (value != nullptr) {
        *value = v;
    }
    return 0;
}

}  // namespace vq6192::sim
