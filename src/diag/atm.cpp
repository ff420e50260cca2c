// Diagnostic commands of the ATM, OAM and ATM pseudowires family. Rows arrive with the module.
#include "diag/registry.h"

namespace vq::diag {

std::span<const Command> atmCommands() {
    return {};
}

}  // namespace vq::diag
