// Diagnostic commands of the framers, timeslots and PRBS family. Rows arrive with the module.
#include "diag/registry.h"

namespace vq::diag {

std::span<const Command> framerCommands() {
    return {};
}

}  // namespace vq::diag
