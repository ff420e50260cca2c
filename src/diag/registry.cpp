// The command registry: the rows of every module family joined into one list.
#include "diag/registry.h"

#include <vector>

namespace vq::diag {
namespace {

const std::vector<Command> &allCommands() {
    static const std::vector<Command> all = [] {
        std::vector<Command> v;
        for (auto family : {chipCommands, sdhCommands, framerCommands, atmCommands, imaCommands, pppCommands,
                            cesCommands, ethCommands}) {
            const std::span<const Command> rows = family();
            v.insert(v.end(), rows.begin(), rows.end());
        }
        return v;
    }();
    return all;
}

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
    return allCommands();
}

const Command *findCommand(std::string_view name) {
    for (const Command &c : allCommands()) {
        if (name == c.name) {
            return &c;
        }
    }
    return nullptr;
}

}  // namespace vq::diag
