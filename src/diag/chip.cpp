// Diagnostic commands of the chip family: print control, tables, chip health and dump.
#include "diag/registry.h"
#include "vq6192/vq6192.h"

namespace vq::diag {
namespace {

// The shell hands every integer over as u32: a group filter of 0xFFFFFFFF is -1, every group.
uint32_t dumpDefault(uint32_t chip, uint32_t groupFilter) {
    return VQ6192_DUMP_F(chip, static_cast<int32_t>(groupFilter));
}

constexpr Command kCommands[] = {
    // Print control
    VQ6192_DIAG_COMMAND(VQ6192_Show_Printf_Flag, "BASE", "chip", "show the print flag of every module"),
    VQ6192_DIAG_COMMAND(VQ6192_Set_Diag_Printf_Flag, "BASE", "chip module flag",
                        "set a module's print flag (module 22: all modules)"),
    // Tables
    VQ6192_DIAG_COMMAND(VQ6192_Rt, "TABLE", "chip tableId index",
                        "read a table entry and print it member by member"),
    // Chip dump
    makeCommand<dumpDefault>("VQ6192_DUMP_F", "DUMP", "chip groupFilter",
                             "default chip dump through the library's file hooks (filter 0xFFFFFFFF: all)"),
};

}  // namespace

std::span<const Command> chipCommands() {
    return kCommands;
}

}  // namespace vq::diag
