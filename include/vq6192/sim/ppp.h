// Chip model: the PPP and multilink block (reset engine, group reset handshake, egress MC queue counts,
// DDR capture records, COBC and FIFO frame capture).
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

class PppBlock : public ChipBlock {
  public:
    static constexpr uint32_t kForever = UINT32_MAX;
    using DdrBlockWords = std::array<uint16_t, 32>;

    explicit PppBlock(ChipModel &model);

    // ---- reset engine (0x12202 bit 0 ready; 0x12216 channel reset, strobe bit 11; 0x12218 bundle
    // reassembly reset, strobe bit 8) ----
    // After every strobe the ready bit reads 0 for this many reads (kForever: never ready again).
    void setResetBusy(uint32_t reads) { resetBusy_ = reads; }
    // The ready bit reads 0 for the next n reads (kForever: until changed).
    void holdNotReady(uint32_t reads) { notReady_ = reads; }
    const std::vector<uint32_t> &channelResets() const { return channelResets_; }
    const std::vector<uint32_t> &bundleResets() const { return bundleResets_; }

    // ---- group reset handshake (request 0x13080 + 2r, acknowledge 0x130A0 + 2r) ----
    // A request is acknowledged after this many reads of its acknowledge register (0: at once).
    void setGroupAckDelay(uint32_t reads) { ackDelay_ = reads; }
    // The bundle's requests are never acknowledged.
    void refuseGroupReset(uint32_t bundle, bool refuse) { refused_[bundle % 256] = refuse; }
    const std::vector<uint32_t> &groupResets() const { return groupResets_; }

    // ---- egress MC queue state (table Mcqst) ----
    // Queue q of bundle b holds `blocks`; the count reads as 0 after `drainAfterReads` reads of its
    // entry (kForever: never drains).
    void fillQueue(uint32_t bundle, uint32_t q, uint32_t blocks, uint32_t drainAfterReads);

    // ---- DDR capture regions (512 KiB per inner channel from 0x2000000) ----
    static uint32_t captureAddr(uint32_t inner, uint32_t offset) {
        return ((inner << 19) | 0x2000000u) + offset;
    }
    // Stores a 64-byte block so that the block read with the word swap delivers `words`.
    void putCaptureBlock(uint32_t addr, const DdrBlockWords &words);
    // Lays out an ingress frame as records from addr: 56 data bytes per block, start bit on the first,
    // end bit and the length on the last (`reportedLen`, or the frame length when UINT32_MAX). Returns
    // the address after the last block.
    uint32_t putIngressFrame(uint32_t addr, const std::vector<uint8_t> &frame,
                             uint32_t reportedLen = UINT32_MAX, bool withEnd = true);
    // Lays out an egress frame: the start block carries up to 56 bytes from byte 8, later blocks up to
    // 60 bytes from byte 4; the last block has the end bit. Returns the address after the last block.
    uint32_t putEgressFrame(uint32_t addr, const std::vector<uint8_t> &frame);

    // ---- COBC capture (0x11018 read pulse, 0x1101C ready, 0x1101E data, 0x11020 flags) ----
    struct CobcWord {
        uint16_t data;
        uint16_t flags;  // bit 0 high byte only, bit 1 start, bit 2 end
    };
    void loadCobcWords(const std::vector<CobcWord> &words);
    // The next n read pulses deliver nothing (ready stays 0).
    void missCobcPulses(uint32_t n) { cobcMisses_ = n; }
    // The ready bit reads 0 for the next n reads, whatever it holds.
    void holdCobcReady(uint32_t reads) { cobcReadyHold_ = reads; }

    // ---- FIFO capture (0x1300C start, 0x13010 ready, 0x13014 read pulse, 0x13016 acknowledge) ----
    // A frame the next capture delivers, four bytes per word.
    void loadFifoFrame(const std::vector<uint8_t> &frame);
    void setFifoReady(bool ready) { fifoReady_ = ready; }
    // Read pulses are not acknowledged after this many words (kForever: always acknowledged).
    void stopFifoAckAfter(uint32_t words) { fifoAckWords_ = words; }

  private:
    uint16_t readReady(uint16_t stored);
    void strobe(std::vector<uint32_t> &log, uint32_t value);

    ChipModel &model_;
    uint32_t resetBusy_ = 1;
    uint32_t notReady_ = 0;
    std::vector<uint32_t> channelResets_;
    std::vector<uint32_t> bundleResets_;

    uint32_t ackDelay_ = 0;
    std::array<bool, 256> refused_{};
    std::array<uint32_t, 256> ackWait_{};
    std::vector<uint32_t> groupResets_;

    std::unordered_map<uint32_t, uint32_t> drainReads_;  // Mcqst entry -> reads left

    std::deque<CobcWord> cobc_;
    uint32_t cobcMisses_ = 0;
    uint32_t cobcReadyHold_ = 0;

    std::deque<std::array<uint16_t, 3>> fifo_;  // data 0x1301A, data 0x13018, flags
    bool fifoReady_ = true;
    uint32_t fifoAckWords_ = kForever;
};

}  // namespace vq6192::sim
