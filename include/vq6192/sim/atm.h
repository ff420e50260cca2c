// Chip model: the ATM switch's moving parts. The queue-delete handshake (its acknowledge answers after
// a number of polls, or never), queue lengths that drain after a number of reads (or never), the OAM
// insertion FIFO that keeps the words pushed into it, the OAM report FIFO and the VCX FIFO that pop
// on read with their not-empty flags (an empty one leaves its last word), the loss-of-continuity bit,
// and the FIFO clear pulses.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

class AtmBlock : public ChipBlock {
  public:
    static constexpr uint32_t kForever = UINT32_MAX;
    // The ATM table-access block and the select codes of the tables behind the moving parts.
    static constexpr uint32_t kTableBlock = 0x5000;
    static constexpr uint32_t kSelOamStatus = 9;
    static constexpr uint32_t kSelReportFifo = 24;
    static constexpr uint32_t kSelInsertFifo = 25;
    static constexpr uint32_t kSelVcxFifo = 26;
    static constexpr uint32_t kSelLinkQm = 48;

    // One 34-bit FIFO word: data, start of cell, end of cell.
    struct FifoWord {
        uint32_t data;
        bool soc;
        bool eoc;
        bool operator==(const FifoWord &) const = default;
    };
    // One queue-delete command as the chip saw it start.
    struct QueueDelete {
        uint32_t queue;  // bits 0..12 of the command register
        bool portQueue;  // bit 13
        bool operator==(const QueueDelete &) const = default;
    };

    explicit AtmBlock(ChipModel &model);

    // Polls of the status register that still read "not done" after a delete started (kForever:
    // never done). 0 by default.
    void setDeleteAckPolls(uint32_t polls) { ackPolls_ = polls; }
    const std::vector<QueueDelete> &deletes() const { return deletes_; }

    // Queue `queue` of Atmlinkqmcfg holds `cells` cells; they are gone after `reads` reads of its
    // entry (kForever: they stay).
    void setQueueLength(uint32_t queue, uint32_t cells, uint32_t reads);
    uint64_t queueReads(uint32_t queue) const;

    // Words pushed into the insertion FIFO since the last clear.
    const std::vector<FifoWord> &inserted() const { return inserted_; }
    // Queues words on the report FIFO; reportCell queues one cell as the chip reports it.
    void pushReportWord(FifoWord w) { report_.push_back(w); }
    void reportCell(uint16_t vcx, const std::array<uint8_t, 53> &cell);
    size_t reportWordsLeft() const { return report_.size(); }
    void pushVcx(uint16_t vcx) { vcxFifo_.push_back(vcx); }

    void setCcloc(uint32_t vcx, bool lost);
    // Clear pulses (0, 1, 0) seen per bit of the FIFO clear register.
    uint32_t clearPulses(uint32_t bit) const { return pulses_.at(bit); }

  private:
    void onTable(uint32_t select, uint32_t address, bool write);
    void setEntryBits(uint32_t select, uint32_t address, uint32_t startBit, uint32_t width, uint32_t value);
    uint32_t entryBits(uint32_t select, uint32_t address, uint32_t startBit, uint32_t width) const;
    void loadFifoWord(uint32_t select, uint32_t address, FifoWord w);

    ChipModel &model_;
    uint32_t ackPolls_ = 0;
    uint32_t ackLeft_ = 0;
    bool deleting_ = false;
    std::vector<QueueDelete> deletes_;
    struct Drain {
        uint32_t readsLeft;
        uint64_t reads;
    };
    std::unordered_map<uint32_t, Drain> drains_;
    std::vector<FifoWord> inserted_;
    std::deque<FifoWord> report_;
    std::deque<uint16_t> vcxFifo_;
    std::array<uint32_t, 16> pulses_{};
};

}  // namespace vq6192::sim
