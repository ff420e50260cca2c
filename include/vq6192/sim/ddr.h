// Chip model: the DDR controller (9-step scan engine, 64-byte block engine, ECC flags) and the DDR
// memory behind it, with data-line and address-line faults.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

// The DDR memory holds 256 MB (byte addresses 0..0x0FFFFFFF; higher address bits are ignored) as
// 16-bit words, sparse: a word never written reads 0.
//
// Data lines. The interface has 32 data lines DQ0..DQ31 in four byte lanes. A 64-bit group of four
// words (eight bytes at an 8-byte boundary) crosses them in two beats: word k of the group on lane k,
// its low byte in the first beat and its high byte in the second. So data line n carries bit n mod 8
// of both bytes of word n / 8 of every group. A line can be stuck at 0 or 1, and two lines can be
// shorted (wired AND: short to 0; wired OR: short to 1); a short acts in a beat only when both lines
// carry a word of the transfer. Faults act on the way into the memory and on the way out.
//
// Address lines. A0..A12 (lines 0..12) carry the row, address bits 15..27; BA0..BA2 (lines 13..15)
// the bank, bits 12..14; in the column phase A3..A9 carry address bits 5..11. Bits 0..4 select the
// word inside a 32-byte burst and never cross the address lines. A line can be stuck at 0 or 1 (all of
// its bits), and two lines can be shorted (wired AND or OR) in every phase in which both carry a bit.
class DdrBlock : public ChipBlock {
  public:
    static constexpr uint32_t kDataLines = 32;
    static constexpr uint32_t kAddressLines = 16;
    static constexpr uint32_t kBlockWords = 32;
    static constexpr uint32_t kForever = UINT32_MAX;
    enum class Short : uint8_t { And, Or };
    using Block = std::array<uint16_t, kBlockWords>;
    // Sees (and may change) the words of every block read after the data-line faults: byte address,
    // words transferred, the block.
    using ReadFilter = std::function<void(uint32_t addr, uint32_t words, Block &block)>;

    explicit DdrBlock(ChipModel &model);

    // ---- memory, as the chip's DDR holds it (no faults) ----
    uint16_t word(uint32_t addr) const;
    void setWord(uint32_t addr, uint16_t value);
    void clearMemory() { memory_.clear(); }
    size_t wordsHeld() const { return memory_.size(); }

    // ---- faults ----
    void stickDataLine(uint32_t line, bool value);
    void shortDataLines(uint32_t a, uint32_t b, Short kind);
    void stickAddressLine(uint32_t line, bool value);
    void shortAddressLines(uint32_t a, uint32_t b, Short kind);
    void setReadFilter(ReadFilter filter) { readFilter_ = std::move(filter); }
    void clearFaults();
    // Byte address the memory uses for a byte address on the bus (after the address-line faults).
    uint32_t physical(uint32_t addr) const;

    // ---- block engine (0xC060 status, 0xC062 control, 0xC064/0xC066 address, 0xC068 length) ----
    // Every block command keeps its busy bit set for this many polls (kForever: never clears).
    void setCommandBusy(uint32_t polls) { commandBusy_ = polls; }
    // After `commands` more block commands, every later command stays busy for ever (kForever: off).
    void stallAfter(uint32_t commands) { stallAfter_ = commands; }
    uint64_t blockWrites() const { return blockWrites_; }
    uint64_t blockReads() const { return blockReads_; }

    // ---- 9-step scan engine (0xC000 test mode, 0xC020 start, 0xC036 status) ----
    // Polls of the status register before a scan finishes (1 by default; kForever: never).
    void setScanPolls(uint32_t polls) { scanPolls_ = polls; }
    // The next scans report an error at `addr` in `step`, reading `read` instead of the pattern.
    void failScan(uint32_t addr, uint16_t step, const std::array<uint16_t, 4> &read);
    void passScan() { scanFails_ = false; }
    uint64_t scansStarted() const { return scansStarted_; }
    std::array<uint16_t, 4> scanPattern() const { return scanPattern_; }
    uint32_t scanMaxAddr() const { return scanMaxAddr_; }
    bool scanRunning() const { return scanRunning_; }

    // ---- ECC flags (0xD000 bits 7..4), cleared by writing them to 0xD00C ----
    void raiseEcc(uint16_t bits);

  private:
    struct DataShort {
        uint32_t a, b;
        Short kind;
    };
    uint32_t commandBusy();
    void blockWrite();
    void blockRead();
    uint32_t blockAddr() const;
    uint32_t blockWordCount() const;
    // Applies the data-line faults to the words of one 64-bit group; present: lanes in the transfer.
    void dataBus(std::array<uint16_t, 4> &lanes, uint32_t present) const;
    void startScan();
    uint16_t pollScan(uint16_t stored);
    uint16_t pollBusy(uint16_t stored);

    ChipModel &model_;
    std::unordered_map<uint32_t, uint16_t> memory_;  // keyed by word address (byte address / 2)

    std::array<int8_t, kDataLines> dataStuck_{};
    std::vector<DataShort> dataShorts_;
    std::array<int8_t, kAddressLines> addrStuck_{};
    std::vector<DataShort> addrShorts_;
    ReadFilter readFilter_;

    uint32_t commandBusy_ = 0;
    uint32_t stallAfter_ = kForever;
    uint32_t writeBusyLeft_ = 0;
    uint32_t readBusyLeft_ = 0;
    uint64_t blockWrites_ = 0;
    uint64_t blockReads_ = 0;

    uint32_t scanPolls_ = 1;
    uint32_t scanLeft_ = 0;
    bool scanRunning_ = false;
    bool scanFails_ = false;
    uint32_t scanErrAddr_ = 0;
    uint16_t scanErrStep_ = 0;
    std::array<uint16_t, 4> scanErrRead_{};
    std::array<uint16_t, 4> scanPattern_{};
    uint32_t scanMaxAddr_ = 0;
    uint64_t scansStarted_ = 0;
};

}  // namespace vq6192::sim
