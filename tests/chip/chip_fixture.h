// Shared fixture of the chip health, self-test and interrupt tests.
#pragma once

#include <array>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/chip.h"
#include "vq6192/sim/chip_control.h"
#include "vq6192/sim/ddr.h"
#include "vq6192/sim/interrupts.h"
#include "vq6192/sim/ram_bist.h"

namespace chiptest {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;

// Status codes of chip 3.
constexpr uint32_t kBasePara = 0x03010001;
constexpr uint32_t kBaseTimeout = 0x03010003;
constexpr uint32_t kBaseFailed = 0x03010007;
constexpr uint32_t kIntPara = 0x030A0001;

inline BusAccess rd(uint32_t addr, uint32_t value) {
    return {BusOp::Read, addr, value, 0, 16};
}
inline BusAccess wr(uint32_t addr, uint32_t value) {
    return {BusOp::Write, addr, value, 0, 16};
}

class ChipFixture : public vqtest::ChipTest {
  protected:
    vq6192::sim::ChipControlBlock &control() { return model.block<vq6192::sim::ChipControlBlock>(); }
    vq6192::sim::InterruptBlock &irq() { return model.block<vq6192::sim::InterruptBlock>(); }
    vq6192::sim::RamBistBlock &bist() { return model.block<vq6192::sim::RamBistBlock>(); }
    vq6192::sim::DdrBlock &ddr() { return model.block<vq6192::sim::DdrBlock>(); }

    // Runs an operation with the bus trace on, from a clean trace and clean captures.
    std::vector<BusAccess> traced(const std::function<void()> &op) {
        model.clearTrace();
        model.setTrace(true);
        op();
        model.setTrace(false);
        return model.trace();
    }

    static std::vector<BusAccess> writes(const std::vector<BusAccess> &t) { return vqtest::writes(t); }

    // A call that must be refused with `status`, trace "ParaErr.\r\n" (or nothing) and touch no register.
    void expectRefused(const char *what, uint32_t status, const std::function<uint32_t()> &op,
                       bool quiet = false) {
        SCOPED_TRACE(what);
        capture.clear();
        uint32_t rc = 0;
        const auto t = traced([&] { rc = op(); });
        EXPECT_EQ(rc, status);
        EXPECT_TRUE(t.empty()) << t.size() << " bus accesses";
        EXPECT_EQ(capture.traceTexts(),
                  quiet ? std::vector<std::string>{} : std::vector<std::string>{"ParaErr.\r\n"});
    }
};

}  // namespace chiptest
