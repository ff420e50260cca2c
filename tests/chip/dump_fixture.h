// Shared fixture of the chip dump tests: in-memory dump files, and the two ways the dump reaches the
// registers (the model's register window, and the indirect path).
#pragma once

#include <algorithm>

#include "chip_fixture.h"
#include "support/mem_files.h"
#include "vq6192/dump.h"
#include "vq6192/sim/register_window.h"

namespace dumptest {

using namespace chiptest;
using vq6192::sim::TableEngine;

// Status codes of chip 3, module DUMP (11).
constexpr uint32_t kPara = 0x030B0001;
constexpr uint32_t kNoFile = 0x030B0002;
constexpr uint32_t kTimeout = 0x030B0003;
constexpr uint32_t kFileErr = 0x030B0007;

constexpr char kFile[] = "chip3.bd";

class DumpTest : public ChipFixture {
  protected:
    vq6192::sim::RegisterWindow &window() { return model.block<vq6192::sim::RegisterWindow>(); }

    // Plain register access goes the indirect way; the install base address is `base`.
    void useIndirect(uintptr_t base = 0, uintptr_t indirectBase = 0) {
        VQ6192_INSTALL_PARA p = model.installPara(kChip, true);
        p.ulBaseAddr = base;
        p.ulIndirectBaseAddr = indirectBase;
        reinstall(p);
    }
    // The chip's registers are the model's register window, read as host memory.
    void useWindow() {
        VQ6192_INSTALL_PARA p = model.installPara(kChip, false);
        p.ulBaseAddr = window().base();
        reinstall(p);
    }
    uint32_t init(const VQ6192_DUMP_REG_BLOCK_S *regs, uint32_t regCount,
                  const VQ6192_DUMP_TBL_GROUP_S *groups, uint32_t groupCount, uintptr_t base = 0) {
        EXPECT_EQ(VQ6192_DUMP_RegFileFunc(kChip, vqtest::MemFiles::open, vqtest::MemFiles::write,
                                          vqtest::MemFiles::close),
                  0u);
        return VQ6192_DUMP_InitializeDump(kChip, "VQ6192", base, regs, regCount, groups, groupCount, kFile);
    }
    static TableEngine::Entry halves(std::initializer_list<uint16_t> values) {
        TableEngine::Entry e{};
        std::copy(values.begin(), values.end(), e.begin());
        return e;
    }

    vqtest::MemFiles files;
};

// A table record built from the catalogue's access record of `tableId`, `depth` entries deep.
inline VQ6192_DUMP_TBL_S tableRecord(const char *name, uint32_t tableId, uint32_t depth, uint16_t width = 0) {
    VQ6192_DUMP_TBL_S t{name, 0x03000000u, g_VQ6192_CHIP_TABLE_INFO[tableId]};
    t.stTbl.ulDepth = depth;
    if (width != 0) {
        t.stTbl.usWidth = width;
    }
    return t;
}

}  // namespace dumptest
