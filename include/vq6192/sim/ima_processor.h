// Chip model: the IMA processor. Its command mailbox (0x4440 busy, accepted and start bits and the
// command code, 0x4442 group, 0x4444..0x444E three 32-bit parameters), what the commands do to the
// group status words, the event fetch handshake (0x4424) with the pending-event and far-end restart
// bits, the read-clear IMA and TC counters, the link states that a forced deletion waits on, the FIFO
// depth that a transmit link drains, and the capture engine's busy bit.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

class ImaProcessor : public ChipBlock {
  public:
    static constexpr uint32_t kForever = UINT32_MAX;
    // Table-access blocks and select codes of the IMA tables, as the chip's register map gives them.
    static constexpr uint32_t kProcBlock = 0x2201, kRxBlock = 0x2600, kTxBlock = 0x2400, kTcBlock = 0x2800;

    struct Command {
        uint32_t code;
        uint32_t group;
        uint32_t para1, para2, para3;
        bool operator==(const Command &) const = default;
    };

    explicit ImaProcessor(ChipModel &model);

    // Every command started through the mailbox, in order.
    const std::vector<Command> &commands() const { return commands_; }
    void clearCommands() { commands_.clear(); }

    // ---- faults and timing ----
    // The busy bit reads 1 for the next n polls whatever happens (kForever: never clears).
    void holdBusy(uint32_t polls) { holdBusy_ = polls; }
    // Each command keeps the busy bit set for n polls after its start (a command still running ends now).
    void setCommandBusy(uint32_t polls) {
        commandBusy_ = polls;
        busyLeft_ = 0;
    }
    // The next n commands are refused (accepted bit 0; kForever: all).
    void refuse(uint32_t commands) { refuse_ = commands; }
    // The event fetch keeps its busy bit for n polls (kForever: never ends).
    void holdEventBusy(uint32_t polls) { eventBusy_ = polls; }
    // A transmit link's IMA-side FIFO depth reads non-zero for the next n reads (kForever: never drains).
    void setDrainReads(uint32_t reads);
    // A link whose state was set to Deleted keeps its enable bit for n reads of its state (kForever).
    void setDeleteReads(uint32_t reads) { deleteReads_ = reads; }
    // The capture engine's busy bit reads 1 for the next n polls (kForever).
    void holdCaptureBusy(uint32_t polls) { captureBusy_ = polls; }

    // ---- events ----
    // A pending event of `group` (0x442C bit 1), with the far-end restart bit (0x4422 bit 1) if asked.
    void raiseEvent(uint32_t group, bool feRestart);

    // ---- table memories by catalogue-independent address (bit positions of the chip's entry) ----
    uint64_t entryBits(uint32_t block, uint32_t select, uint32_t address, uint32_t startBit,
                       uint32_t width) const;
    void setEntryBits(uint32_t block, uint32_t select, uint32_t address, uint32_t startBit, uint32_t width,
                      uint64_t value);

  private:
    void execute(uint32_t code);
    uint16_t readMailbox(uint16_t stored);
    void beforeRead(uint32_t block, uint32_t select, uint32_t address);
    void afterRead(uint32_t block, uint32_t select, uint32_t address);

    ChipModel &model_;
    std::vector<Command> commands_;
    uint32_t holdBusy_ = 0;
    uint32_t commandBusy_ = 0;
    uint32_t busyLeft_ = 0;
    uint32_t refuse_ = 0;
    bool accepted_ = false;
    uint32_t eventBusy_ = 0;
    uint32_t pendingGroup_ = 0;
    bool draining_ = false;
    uint32_t drainReads_ = 0;
    uint32_t deleteReads_ = 0;
    std::unordered_map<uint64_t, uint32_t> deleteLeft_;
    uint32_t captureBusy_ = 0;
};

}  // namespace vq6192::sim
