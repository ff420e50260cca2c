// Every diagnostic command, one row each, grouped by module.
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

const char *argKindName(ArgKind kind) {
    switch (kind) {
        case ArgKind::U32:
            return "integer";
        case ArgKind::Bytes:
            return "hex bytes";
        case ArgKind::U16Array:
            return "16-bit list";
        case ArgKind::Text:
            return "text";
    }
    return "?";
}

std::span<const Command> commands() {
    return kCommands;
}

const Command *findCommand(std::string_view name) {
    for (const Command &c : kCommands) {
        if (name == c.name) {
            return &c;
        }
    }
    return nullptr;
}

}  // namespace vq::diag
