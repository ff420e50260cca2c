// CRC-10 of OAM cell payloads: generator x^10 + x^9 + x^5 + x^4 + x + 1, one byte table per chip.
#include "atm/atm_internal.h"

extern "C" {
VQ6192_API uint16_t g_VQ6192_byte_crc10_table[VQ6192_CHIP_RECORD_NUM][256];
}

namespace {

using namespace vq::atm;

constexpr uint32_t kGenerator = 0x633;
constexpr uint32_t kPayloadBytes = 48;
constexpr uint32_t kCrcHighByte = 46;  // bits 1..0 hold CRC bits 9..8
constexpr uint32_t kCrcLowByte = 47;

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_gen_byte_crc10_table(uint32_t chip) {
    if (!vq::recordIndex(chip)) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < 256; ++i) {
        uint32_t v = i << 2;
        for (int step = 0; step < 8; ++step) {
            v = (v << 1) & 0xFFFFu;
            if ((v & 0x400u) != 0) {
                v ^= kGenerator;
            }
        }
        g_VQ6192_byte_crc10_table[chip][i] = static_cast<uint16_t>(v);
    }
    return 0;
}

VQ6192_API uint16_t VQ6192_ATM_update_crc10_by_bytes(uint32_t chip, uint16_t crc, const uint8_t *data,
                                                     int32_t len) {
    if (data == nullptr || !vq::recordIndex(chip)) {
        paraErr(chip);
        return crc;
    }
    uint32_t c = crc;
    for (int32_t i = 0; i < len; ++i) {
        c = (g_VQ6192_byte_crc10_table[chip][(c >> 2) & 0xFFu] ^ ((c << 8) & 0x300u) ^ data[i]) & 0xFFFFu;
    }
    return static_cast<uint16_t>(c);
}

VQ6192_API uint32_t VQ6192_ATM_crc10(uint32_t chip, uint8_t payload[48], uint32_t insert) {
    if (payload == nullptr || !vq::recordIndex(chip)) {
        return paraErr(chip);
    }
    VQ6192_ATM_gen_byte_crc10_table(chip);
    if (insert == 0) {
        return VQ6192_ATM_update_crc10_by_bytes(chip, 0, payload, kPayloadBytes);
    }
    payload[kCrcHighByte] &= 0xFCu;
    payload[kCrcLowByte] = 0;
    const uint32_t crc = VQ6192_ATM_update_crc10_by_bytes(chip, 0, payload, kPayloadBytes);
    payload[kCrcHighByte] ^= static_cast<uint8_t>((crc >> 8) & 3u);
    payload[kCrcLowByte] ^= static_cast<uint8_t>(crc & 0xFFu);
    return crc;
}

}  // extern "C"
