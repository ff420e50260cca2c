// Test support: a chip installed on the chip model with the virtual clock, and capture of the
// platform log and of the trace point.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "vq6192/core.h"
#include "vq6192/platform.h"
#include "vq6192/sim.h"

namespace vqtest {

struct LogLine {
    uint32_t mask;
    std::string text;
};

struct TraceLine {
    uint32_t chip;
    uint32_t module;
    uint32_t level;
    std::string text;
};

// Installs platform hooks that collect PIC_DbgLog and VQ6192_Printf lines, and the virtual clock.
class PlatformCapture {
  public:
    PlatformCapture();
    ~PlatformCapture();
    std::vector<LogLine> logs;
    std::vector<TraceLine> traces;
    std::vector<std::string> logTexts() const;
    std::vector<std::string> traceTexts() const;
    void clear();
};

uint64_t outstandingAllocations();

// The register writes (plain and field) of a bus trace.
std::vector<vq6192::sim::BusAccess> writes(const std::vector<vq6192::sim::BusAccess> &trace);

// A chip installed on a chip model; teardown uninstalls it and checks that every allocation was
// given back.
class ChipTest : public ::testing::Test {
  protected:
    static constexpr uint32_t kChip = 3;
    void SetUp() override;
    void TearDown() override;
    // Reinstalls the chip with the given record (after uninstalling it).
    void reinstall(const VQ6192_INSTALL_PARA &para);
    // The chip's four failure counters: arbitration refusals, semaphore take and give failures, table
    // time-outs.
    std::vector<uint32_t> failCounters() const;
    // Registers of the model set or read in a list, without bus accesses.
    void poke(std::initializer_list<std::pair<uint32_t, uint32_t>> regs);
    std::vector<uint32_t> peek(std::initializer_list<uint32_t> addrs) const;
    // The bus accesses of one call, from a clean trace (the trace is off afterwards).
    std::vector<vq6192::sim::BusAccess> traced(const std::function<void()> &op);

    PlatformCapture capture;
    vq6192::sim::ChipModel model;
    VQ6192_INSTALL_PARA para{};

  private:
    uint64_t baseline_ = 0;
};

}  // namespace vqtest
