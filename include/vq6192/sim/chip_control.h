// Chip model: the chip control block (identity, register test register, service power, die id).
#pragma once

#include <array>
#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

class ChipControlBlock : public ChipBlock {
  public:
    static constexpr uint16_t kChipId = 0x6192;
    static constexpr uint16_t kRevision = 0x0210;

    // Service blocks by their bit in the power register (0x18).
    enum class Service : uint8_t { Atm = 0, Ppp = 1, Ces = 2 };

    explicit ChipControlBlock(ChipModel &model);

    // Version registers 0x00 and 0x02.
    void setVersion(uint16_t high, uint16_t low);

    // The register test register (0x04) reads back the complement of what was written; the bits of
    // `mask` read back as written instead (0xFFFF: no inversion at all).
    void setNonInvertingBits(uint16_t mask) { nonInverting_ = mask; }

    // A service's power status (0x1A / 0x1C) follows its power bit: all status bits once powered, none
    // without power. hold() makes it read `status` whatever the power bit; release() ends that.
    void holdPowerStatus(Service s, uint16_t status);
    void releasePowerStatus(Service s);

    // Die id registers 0x160..0x172: control, CRC, eight id words.
    struct DieId {
        uint16_t ctrl = 0x3;   // read and write done
        uint16_t crc = 0x15A;  // CRC right, CRC 0x5A
        std::array<uint16_t, 8> words{0x1234, 0x5678, 0x9ABC, 0xDEF0, 0x0F1E, 0x2D3C, 0x4B5A, 0x3F};
    };
    void setDieId(const DieId &id) { dieId_ = id; }
    const DieId &dieId() const { return dieId_; }

  private:
    struct Hold {
        bool on = false;
        uint16_t status = 0;
    };
    uint16_t status(Service s) const;

    ChipModel &model_;
    uint16_t versionHigh_ = kChipId;
    uint16_t versionLow_ = kRevision;
    uint16_t nonInverting_ = 0;
    std::array<Hold, 3> hold_{};
    DieId dieId_{};
};

}  // namespace vq6192::sim
