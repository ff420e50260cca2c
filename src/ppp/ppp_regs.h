// PPP registers (byte addresses).
#pragma once

#include <cstdint>

namespace vq::ppp {

// VC-4 PPP enable: bit n enables VC-4 PPP channel n.
inline constexpr uint32_t kVc4EnableReg = 0x10048;
inline constexpr uint32_t kVc4EnableBit = 0;
inline constexpr uint32_t kVc4EnableWidth = 4;

// Inner channel number of an enabled VC-4 PPP channel n: n * 512.
inline constexpr uint32_t kVc4InnerStride = 512;

}  // namespace vq::ppp
