// Diagnostic commands of the PPP and multilink PPP family. Rows arrive with the module.
#include "diag/registry.h"

namespace vq::diag {

std::span<const Command> pppCommands() {
    return {};
}

}  // namespace vq::diag
