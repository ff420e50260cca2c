// The packet side: the Ethernet capture handshake and the PPP protocol packet RAMs.
#include "vq6192/sim/eth.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kIpProtoReg0 = 0x811E;
constexpr uint32_t kIpProtoReg1 = 0x8120;

// Capture: flag, length, read address and data, release.
constexpr uint32_t kCapLenReg = 0x902A;      // bits 0..11
constexpr uint32_t kCapReleaseReg = 0x902C;  // bit 0, self-clearing
constexpr uint32_t kCapDoneReg = 0x902E;     // bit 0
constexpr uint32_t kCapAddrReg = 0x9030;     // bits 0..9
constexpr uint32_t kCapDataReg = 0x9032;

// Protocol packets.
constexpr uint32_t kRdLenReg = 0x814E;      // bits 0..11
constexpr uint32_t kRdReleaseReg = 0x8150;  // bit 0, self-clearing
constexpr uint32_t kStatusReg = 0x8152;     // bit 1 insertion busy, bit 0 packet waiting
constexpr uint32_t kSendReg = 0x8154;       // bits 0..4 = 1: send
constexpr uint32_t kInsAddrReg = 0x8156;    // bits 0..9
constexpr uint32_t kInsDataReg = 0x8158;
constexpr uint32_t kRdAddrReg = 0x815A;  // bits 0..9
constexpr uint32_t kRdDataReg = 0x815C;
constexpr uint32_t kInsLenReg = 0x8160;  // bits 0..11

// Word i of a packet: byte 2i in the high half.
uint16_t wordOf(const std::vector<uint8_t> &p, uint32_t i) {
    const uint32_t hi = 2 * i < p.size() ? p[2 * i] : 0;
    const uint32_t lo = 2 * i + 1 < p.size() ? p[2 * i + 1] : 0;
    return static_cast<uint16_t>(hi << 8 | lo);
}

}  // namespace

EthBlock::EthBlock(ChipModel &model) : model_(model) {
    model.poke(kIpProtoReg0, kIpProtoGreUdp);
    model.poke(kIpProtoReg1, kIpProtoMplsIp);

    model.onRead(kCapDoneReg, [this](uint32_t, uint16_t stored) {
        return static_cast<uint16_t>((stored & ~1u) | (captured_ ? 1u : 0u));
    });
    model.onRead(kCapLenReg, [this](uint32_t, uint16_t) {
        return static_cast<uint16_t>(captured_ ? capture_.size() & 0xFFF : 0);
    });
    model.onRead(kCapDataReg, [this](uint32_t, uint16_t) { return capturedWord(); });
    model.onWrite(kCapReleaseReg, [this](uint32_t, uint16_t value, uint16_t) {
        if ((value & 1u) != 0 && captured_) {
            captured_ = false;
            releases_++;
        }
        return static_cast<uint16_t>(value & ~1u);
    });

    model.onRead(kStatusReg, [this](uint32_t, uint16_t stored) {
        uint16_t v = static_cast<uint16_t>(stored & ~3u);
        if (insertBusy_ != 0) {
            v |= 2;
            if (insertBusy_ != kForever) {
                insertBusy_--;
            }
        }
        return static_cast<uint16_t>(v | (received_.empty() ? 0 : 1));
    });
    model.onWrite(kInsDataReg, [this](uint32_t, uint16_t value, uint16_t) {
        insertRam_[model_.peek(kInsAddrReg) & 0x3FF] = value;
        return value;
    });
    model.onWrite(kSendReg, [this](uint32_t, uint16_t value, uint16_t) {
        if ((value & 0x1F) == 1) {
            const uint32_t len = model_.peek(kInsLenReg) & 0xFFF;
            std::vector<uint8_t> p(len);
            for (uint32_t i = 0; i < len; ++i) {
                const uint16_t w = insertRam_[(i / 2) & 0x3FF];
                p[i] = static_cast<uint8_t>(i % 2 == 0 ? w >> 8 : w);
            }
            inserted_.push_back(std::move(p));
        }
        return static_cast<uint16_t>(value & ~0x1Fu);
    });
    model.onRead(kRdLenReg, [this](uint32_t, uint16_t) {
        return static_cast<uint16_t>(received_.empty() ? 0 : received_.front().size() & 0xFFF);
    });
    model.onRead(kRdDataReg, [this](uint32_t, uint16_t) { return receivedWord(); });
    model.onWrite(kRdReleaseReg, [this](uint32_t, uint16_t value, uint16_t) {
        if ((value & 1u) != 0 && !received_.empty()) {
            received_.pop_front();
        }
        return static_cast<uint16_t>(value & ~1u);
    });
}

void EthBlock::capture(const std::vector<uint8_t> &packet) {
    capture_ = packet;
    captured_ = true;
}

void EthBlock::receive(const std::vector<uint8_t> &packet) {
    received_.push_back(packet);
}

uint16_t EthBlock::capturedWord() const {
    return captured_ ? wordOf(capture_, model_.peek(kCapAddrReg) & 0x3FF) : 0;
}

uint16_t EthBlock::receivedWord() const {
    return received_.empty() ? 0 : wordOf(received_.front(), model_.peek(kRdAddrReg) & 0x3FF);
}

}  // namespace vq6192::sim
