// The SDH suite's fixture: a chip on the model, the path register blocks by number, and the two checks
// most operations share (a refused call touches nothing; a setter changes only its field).
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/test_support.h"
#include "vq6192/sdh.h"
#include "vq6192/sim/sdh_paths.h"

namespace sdhtest {

using Page = vq6192::sim::SdhPaths::Page;

constexpr uint32_t kParaErr = 0x03080001;
constexpr uint32_t kPrereqErr = 0x03080004;

// Transmit high-order block n, receive high-order block n, receive and transmit low-order channel c of
// VC-4 v.
constexpr uint32_t (*th)(uint32_t) = [](uint32_t n) -> uint32_t { return 0x2DCC0 + 0x20 * n; };
constexpr uint32_t (*hr)(uint32_t) = [](uint32_t n) -> uint32_t { return 0x2C040 + 0x40 * n; };
constexpr uint32_t (*lr)(uint32_t, uint32_t) = [](uint32_t v, uint32_t c) -> uint32_t {
    return 0x2C380 + 0x4000 * v + 0x40 * c;
};
constexpr uint32_t (*lt)(uint32_t, uint32_t) = [](uint32_t v, uint32_t c) -> uint32_t {
    return 0x2DE60 + 0x4000 * v + 8 * c;
};

// Several outputs in one comparison: EXPECT_EQ(ints(mode, value), ints(1, 0x5A)). A braced Ints is
// evaluated left to right, so it can hold a call's status and then the outputs it filled.
using Ints = std::vector<int64_t>;
template <typename... T>
Ints ints(T... v) {
    return {static_cast<int64_t>(v)...};
}

// A setter writing `value` into bits bit..bit+width-1 of `count` registers `stride` apart, and the
// getter reading it back.
template <typename Out>
struct Field {
    const char *name;
    std::function<uint32_t(uint32_t chip, uint32_t value)> set;
    std::function<uint32_t(uint32_t chip, Out *out)> get;
    uint32_t reg, stride, count, bit, width, value;
};

class SdhTest : public vqtest::ChipTest {
  protected:
    vq6192::sim::SdhPaths &paths() { return model.block<vq6192::sim::SdhPaths>(); }
    // One register of each of the twelve high-order blocks (block(n) + offset), written or read.
    void fill12(uint32_t (*block)(uint32_t), uint32_t offset, uint16_t value) {
        for (uint32_t n = 0; n < 12; ++n) {
            model.poke(block(n) + offset, value);
        }
    }
    Ints peek12(uint32_t (*block)(uint32_t), uint32_t offset) {
        Ints v;
        for (uint32_t n = 0; n < 12; ++n) {
            v.push_back(model.peek(block(n) + offset));
        }
        return v;
    }
    // `value` in the blocks of VC-4 `vc4` (n % 4 == vc4), `others` in the rest.
    static Ints ofVc4(uint32_t vc4, int64_t value, int64_t others) {
        Ints v;
        for (uint32_t n = 0; n < 12; ++n) {
            v.push_back(n % 4 == vc4 ? value : others);
        }
        return v;
    }

    // Refused calls, made as the arguments after beginRefusals() (in any order): each returned `code`,
    // none made a bus access, and each printed the parameter error line unless `quiet`.
    void beginRefusals() {
        capture.clear();
        model.clearTrace();
        model.setTrace(true);
    }
    template <typename... S>
    void expectRefusals(uint32_t code, bool quiet, S... got) {
        model.setTrace(false);
        EXPECT_EQ(ints(got...), Ints(sizeof...(got), code));
        EXPECT_TRUE(model.trace().empty());
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>(quiet ? 0 : sizeof...(got), "ParaErr.\r\n"));
    }

    // Registers start with every bit but the field's set; the field is written and read back.
    template <typename Out>
    void expectFields(const std::vector<Field<Out>> &cases) {
        for (const auto &c : cases) {
            const auto mask = static_cast<uint16_t>(((1u << c.width) - 1u) << c.bit);
            for (uint32_t k = 0; k < c.count; ++k) {
                model.poke(c.reg + k * c.stride, static_cast<uint16_t>(~mask));
            }
            ASSERT_EQ(c.set(kChip, c.value), 0u) << c.name;
            for (uint32_t k = 0; k < c.count; ++k) {
                EXPECT_EQ(model.peek(c.reg + k * c.stride), static_cast<uint16_t>(~mask | (c.value << c.bit)))
                    << c.name;
            }
            Out out = static_cast<Out>(0xEEEE);
            ASSERT_EQ(c.get(kChip, &out), 0u) << c.name;
            EXPECT_EQ(out, c.value) << c.name;
            // Read again with the neighbours clear, so that a getter reading another bit sees 0.
            model.poke(c.reg, static_cast<uint16_t>(c.value << c.bit));
            ASSERT_EQ(c.get(kChip, &out), 0u) << c.name;
            EXPECT_EQ(out, c.value) << c.name << ", neighbours clear";
        }
    }
};

}  // namespace sdhtest
