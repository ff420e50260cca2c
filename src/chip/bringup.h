// Chip bring-up as a table of steps: VQ6192_Base_Initialize runs them in order, and so does the debug
// shell, which shows a progress line per step.
#pragma once

#include <cstdint>
#include <span>

namespace vq::chip {

// The arguments of one bring-up (mode 1 full, 2 module restore).
struct BringUpRun {
    uint32_t chip;
    uint32_t mode;
    uint32_t tdmMode;
    uint32_t ddrTest;
    uint32_t frmOption;
    const void *ddrOption;
};

// One step: a short name for progress lines, whether module restore runs it too, whether it runs only
// when the DDR test is asked for, and its body, which returns 0 or the bring-up's failure status.
struct BringUpStep {
    const char *name;
    bool restore;
    bool ddrTestOnly;
    uint32_t (*run)(const BringUpRun &run);
};

// Every step, in order.
std::span<const BringUpStep> bringUpSteps();

inline bool stepRuns(const BringUpStep &step, const BringUpRun &run) {
    return (run.mode == 1 || step.restore) && (!step.ddrTestOnly || run.ddrTest == 1);
}

// The argument check of VQ6192_Base_Initialize: 0 or the parameter error (traced).
uint32_t checkBringUp(const BringUpRun &run);

}  // namespace vq::chip
