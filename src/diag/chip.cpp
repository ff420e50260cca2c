// Diagnostic commands of the chip family: print control, tables, chip health and dump.
#include "diag/registry.h"
#include "vq6192/vq6192.h"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    // Print control
    VQ6192_DIAG_COMMAND(VQ6192_Show_Printf_Flag, "BASE", "chip", "show the print flag of every module"),
    VQ6192_DIAG_COMMAND(VQ6192_Set_Diag_Printf_Flag, "BASE", "chip module flag",
                        "set a module's print flag (module 22: all modules)"),
    // Tables
    VQ6192_DIAG_COMMAND(VQ6192_Rt, "TABLE", "chip tableId index",
                        "read a table entry and print it member by member"),
};

}  // namespace

std::span<const Command> chipCommands() {
    return kCommands;
}

}  // namespace vq::diag
