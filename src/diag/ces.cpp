// Diagnostic commands of the circuit emulation and clock recovery family. Rows arrive with the module.
#include "diag/registry.h"

namespace vq::diag {

std::span<const Command> cesCommands() {
    return {};
}

}  // namespace vq::diag
