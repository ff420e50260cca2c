// Diagnostic commands of the IMA family. Rows arrive with the module.
#include "diag/registry.h"

namespace vq::diag {

std::span<const Command> imaCommands() {
    return {};
}

}  // namespace vq::diag
