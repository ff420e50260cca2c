// The framer suite's fixture: a chip on the model, the framer registers and timeslot table entries by
// channel, and the parameter error of chip 3.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/test_support.h"
#include "vq6192/framer.h"
#include "vq6192/sim/framers.h"

namespace framertest {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using vq6192::sim::Framers;
using vq6192::sim::TableEngine;

constexpr uint32_t kParaErr = 0x030E0001;
// The timeslot table block and its two selects; an entry's index is (source << 5) | timeslot.
constexpr uint32_t kTsBlock = 0x10ab;
constexpr uint32_t kIngressSelect = 0;
constexpr uint32_t kEgressSelect = 1;

// Several outputs in one comparison: EXPECT_EQ(ints(mode, value), ints(1, 0x5A)). A braced Ints is
// evaluated left to right, so it can hold a call's status and then the outputs it filled.
using Ints = std::vector<int64_t>;
template <typename... T>
Ints ints(T... v) {
    return {static_cast<int64_t>(v)...};
}

class FramerTest : public vqtest::ChipTest {
  protected:
    void TearDown() override {
        g_uiPrbsFlag[kChip] = 0;
        ChipTest::TearDown();
    }
    Framers &framers() { return model.block<Framers>(); }
    uint16_t ingress(uint32_t e1, uint32_t word = Framers::kIngMode) {
        return model.peek(Framers::ingressAddr(e1, word));
    }
    uint16_t egress(uint32_t e1, uint32_t word = Framers::kEgMode) {
        return model.peek(Framers::egressAddr(e1, word));
    }
    uint16_t entry(uint32_t select, uint32_t source, uint32_t ts) {
        return model.tables().entry(kTsBlock, select, (source << 5) | ts)[0];
    }
    void setEntry(uint32_t select, uint32_t source, uint32_t ts, uint16_t value) {
        TableEngine::Entry e{};
        e[0] = value;
        model.tables().setEntry(kTsBlock, select, (source << 5) | ts, e);
    }
    void tdm(uint32_t mode) { ASSERT_EQ(VQ6192_Framer_SetFrmTDMMode(kChip, mode), 0u); }
    bool wrote() { return !vqtest::writes(model.trace()).empty(); }

    // Refused calls, made as the arguments after beginRefusals() (in any order): each returned the
    // parameter error, none made a bus access, and each printed the parameter error line under the
    // framer's print module.
    void beginRefusals() {
        capture.clear();
        model.clearTrace();
        model.setTrace(true);
    }
    template <typename... S>
    void expectRefusals(S... got) {
        model.setTrace(false);
        EXPECT_EQ(ints(got...), Ints(sizeof...(got), kParaErr));
        EXPECT_TRUE(model.trace().empty());
        ASSERT_EQ(capture.traces.size(), sizeof...(got));
        for (const auto &t : capture.traces) {
            EXPECT_EQ(ints(t.module, t.text == "ParaErr.\r\n"), ints(VQ6192_MODULE_FRM, 1));
        }
    }
};

}  // namespace framertest
