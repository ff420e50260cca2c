// Diagnostic commands of the Ethernet side and MAC ports family. Rows arrive with the module.
#include "diag/registry.h"

namespace vq::diag {

std::span<const Command> ethCommands() {
    return {};
}

}  // namespace vq::diag
