// Chip model: the ATM pseudowire block and the switch's counters and cell capture. The PW delete
// handshake (done after a number of polls, or never), the PW packet capture that fills the packet
// buffer with queued packets, the FIFO overflow counters, counter tables that clear when read, and the
// line and system cell capture with their match registers and capture FIFOs that pop at index 1.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

class AtmPwe3Block : public ChipBlock {
  public:
    static constexpr uint32_t kForever = UINT32_MAX;
    static constexpr uint32_t kTableBlock = 0x5000;
    // Select codes of the tables behind the moving parts.
    static constexpr uint32_t kSelTrcc = 1;
    static constexpr uint32_t kSelTtcc = 2;
    static constexpr uint32_t kSelLpcc = 6;
    static constexpr uint32_t kSelSpcc = 8;
    static constexpr uint32_t kSelBmPvcSta = 18;
    static constexpr uint32_t kSelBmFifoSta = 20;
    static constexpr uint32_t kSelLcapFifo = 27;
    static constexpr uint32_t kSelScapFifo = 28;
    static constexpr uint32_t kSelPwTxSt = 34;
    static constexpr uint32_t kSelPwRxSt = 36;
    static constexpr uint32_t kSelPktBuf = 37;

    // One handshake start as the chip saw it.
    struct PwCommand {
        uint32_t pw;
        uint32_t direction;  // capture only
        bool operator==(const PwCommand &) const = default;
    };
    using Cell = std::array<uint8_t, 64>;

    explicit AtmPwe3Block(ChipModel &model);

    // The delete done bit reads 1 from the n-th poll after a start on (kForever: never).
    void setDeletePolls(uint32_t n) { deletePolls_ = n; }
    const std::vector<PwCommand> &deletes() const { return deletes_; }
    // The capture done bit reads 1 from the n-th poll after a start on (kForever: never); a start
    // writes the queued packets into the packet buffer, one after the other.
    void setCapturePolls(uint32_t n) { capturePolls_ = n; }
    void queuePacket(std::vector<uint8_t> bytes) { packets_.push_back(std::move(bytes)); }
    const std::vector<PwCommand> &captures() const { return captures_; }
    // A cell waiting in the line (0) or system (1) capture FIFO; the captured flag of the side reads 1
    // while one of its start bits is set and a cell waits.
    void queueCell(uint32_t side, const Cell &cell);
    // The counter tables clear when read, as the chip's do, once switched on; off by default so that
    // readers comparing the model's memory with what they read (the chip dump) find it unchanged.
    void setReadClear(bool on) { readClear_ = on; }
    size_t fifoWords(uint32_t side) const { return fifo_[side].size(); }

  private:
    void onReadDone(uint32_t select, uint32_t address);
    void fillPacketBuffer();
    void clearBits(uint32_t select, uint32_t address, uint32_t startBit, uint32_t width);

    ChipModel &model_;
    uint32_t deletePolls_ = 1;
    uint32_t deleteLeft_ = 0;
    bool deleting_ = false;
    std::vector<PwCommand> deletes_;
    uint32_t capturePolls_ = 1;
    uint32_t captureLeft_ = 0;
    bool capturing_ = false;
    std::vector<PwCommand> captures_;
    std::vector<std::vector<uint8_t>> packets_;
    std::array<std::deque<uint32_t>, 2> fifo_;
    bool readClear_ = false;
};

}  // namespace vq6192::sim
