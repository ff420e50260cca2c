// Diagnostic commands of the SDH/SONET mapper and telecom bus family. Rows arrive with the module.
#include "diag/registry.h"

namespace vq::diag {

std::span<const Command> sdhCommands() {
    return {};
}

}  // namespace vq::diag
