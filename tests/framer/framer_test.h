// The framer suite's shared pieces: the parameter error of chip 3, and several outputs compared at once.
#pragma once

#include <vector>

#include "support/test_support.h"

namespace framertest {

constexpr uint32_t kParaErr = 0x030E0001;

// EXPECT_EQ(ints(mode, value), ints(1, 0x5A)).
template <typename... T>
std::vector<int> ints(T... v) {
    return {static_cast<int>(v)...};
}

}  // namespace framertest
