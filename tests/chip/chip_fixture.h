// Shared fixture of the chip tests: chip 3 on the model, traced calls, refusal checks, and the chip
// control, interrupt, RAM self-test and DDR blocks of the model.
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
using Lines = std::vector<std::string>;
using Accesses = std::vector<BusAccess>;
using U16s = std::vector<uint16_t>;
using U32s = std::vector<uint32_t>;
using U64s = std::vector<uint64_t>;

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

// A call that must be refused with `status`, trace "ParaErr.\r\n" (nothing when quiet) and touch no
// register.
struct Refusal {
    const char *what;
    uint32_t status;
    std::function<uint32_t()> op;
    bool quiet = false;
};

class ChipFixture : public vqtest::ChipTest {
  protected:
    vq6192::sim::ChipControlBlock &control() { return model.block<vq6192::sim::ChipControlBlock>(); }
    vq6192::sim::InterruptBlock &irq() { return model.block<vq6192::sim::InterruptBlock>(); }
    vq6192::sim::RamBistBlock &bist() { return model.block<vq6192::sim::RamBistBlock>(); }
    vq6192::sim::DdrBlock &ddr() { return model.block<vq6192::sim::DdrBlock>(); }
    static Accesses writes(const Accesses &t) { return vqtest::writes(t); }

    void expectRefused(std::initializer_list<Refusal> rows) {
        for (const Refusal &r : rows) {
            SCOPED_TRACE(r.what);
            capture.clear();
            uint32_t rc = 0;
            const auto t = traced([&] { rc = r.op(); });
            EXPECT_EQ(rc, r.status);
            EXPECT_TRUE(t.empty()) << t.size() << " bus accesses";
            EXPECT_EQ(capture.traceTexts(), r.quiet ? Lines{} : Lines{"ParaErr.\r\n"});
        }
    }
};

}  // namespace chiptest
