// Chip model: the packet side of the chip. The Ethernet capture handshake (captured flag, length,
// read address and data, release), the PPP protocol packet insert and read RAMs with their status,
// and the power-on values of the packet engine's IP protocol registers. SerDes lane, self-test and
// counter registers are plain registers that tests set with poke().
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

class EthBlock : public ChipBlock {
  public:
    static constexpr uint32_t kForever = UINT32_MAX;
    // Power-on IP protocol numbers: GRE (47) and UDP (17) in 0x811E, MPLS in IP (137) in 0x8120.
    static constexpr uint16_t kIpProtoGreUdp = 0x112F;
    static constexpr uint16_t kIpProtoMplsIp = 0x0089;

    explicit EthBlock(ChipModel &model);

    // A packet lands in the capture buffer: the captured flag rises until the driver releases it.
    void capture(const std::vector<uint8_t> &packet);
    bool captured() const { return captured_; }
    uint32_t releases() const { return releases_; }

    // The insertion engine reads busy for the next n polls (kForever: until changed).
    void holdInsertBusy(uint32_t polls) { insertBusy_ = polls; }
    // Packets the driver sent through the insertion RAM (length register, then the send command).
    const std::vector<std::vector<uint8_t>> &inserted() const { return inserted_; }
    // Words written to the insertion RAM, by word address.
    uint16_t insertWord(uint32_t addr) const { return insertRam_.at(addr); }

    // A protocol packet from the network waits for the driver until released.
    void receive(const std::vector<uint8_t> &packet);
    size_t waiting() const { return received_.size(); }

  private:
    uint16_t capturedWord() const;
    uint16_t receivedWord() const;

    ChipModel &model_;
    std::vector<uint8_t> capture_;
    bool captured_ = false;
    uint32_t releases_ = 0;
    uint32_t insertBusy_ = 0;
    std::array<uint16_t, 1024> insertRam_{};
    std::vector<std::vector<uint8_t>> inserted_;
    std::deque<std::vector<uint8_t>> received_;
};

}  // namespace vq6192::sim
