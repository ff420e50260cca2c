#include "arguments.h"

#include <algorithm>
#include <cctype>

#include "parser.h"
#include "vq6192/vq6192.h"

namespace vqshell {
namespace {

struct RoleName {
    const char *name;  // lower case
    ArgRole role;
};

// Argument names as the command rows write them, compared in lower case.
constexpr RoleName kRoleNames[] = {
    {"chip", ArgRole::Chip},     {"chipid", ArgRole::Chip},     {"table", ArgRole::Table},
    {"tableid", ArgRole::Table}, {"tblid", ArgRole::Table},     {"member", ArgRole::Member},
    {"module", ArgRole::Module}, {"moduleid", ArgRole::Module}, {"command", ArgRole::Command},
};

}  // namespace

std::string lowerCase(std::string_view s) {
    std::string out(s);
    std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return std::tolower(c); });
    return out;
}

ArgRole argRole(std::string_view name) {
    const std::string wanted = lowerCase(name);
    for (const RoleName &r : kRoleNames) {
        if (wanted == r.name) {
            return r.role;
        }
    }
    return ArgRole::Plain;
}

const char *argRoleKind(ArgRole role) {
    switch (role) {
        case ArgRole::Chip:
            return "installed chip id";
        case ArgRole::Table:
            return "table name or id";
        case ArgRole::Member:
            return "member name of that table";
        case ArgRole::Module:
            return "module name or id";
        case ArgRole::Command:
            return "command name";
        case ArgRole::Plain:
            break;
    }
    return nullptr;
}

bool tableByName(std::string_view name, uint32_t *id) {
    const std::string wanted = lowerCase(name);
    if (wanted == "reserved") {
        return false;
    }
    for (uint32_t t = 0; t < VQ6192_CHIP_TABLE_NUM; ++t) {
        if (lowerCase(g_astVQ6192TblEntryList[t].pszName) == wanted) {
            *id = t;
            return true;
        }
    }
    return false;
}

bool moduleByName(std::string_view name, uint32_t *id) {
    const std::string wanted = lowerCase(name);
    for (uint32_t m = 0; m < VQ6192_MODULE_NUM; ++m) {
        if (lowerCase(g_pszModule[m]) == wanted) {
            *id = m;
            return true;
        }
    }
    return false;
}

bool tableByNameOrId(std::string_view word, uint32_t *id) {
    uint32_t value = 0;
    if (parseU32(word, &value)) {
        if (value >= VQ6192_CHIP_TABLE_NUM) {
            return false;
        }
        *id = value;
        return true;
    }
    return tableByName(word, id);
}

std::vector<std::string> tableMembers(uint32_t id) {
    std::vector<std::string> names;
    if (id < VQ6192_TBL_ENTRY_NUM) {
        const VQ6192_TBL_ENTRY_S &e = g_astVQ6192TblEntryList[id];
        for (uint32_t i = 0; i < e.usMemberNum; ++i) {
            names.emplace_back(e.pstMember[i].pszName);
        }
    }
    return names;
}

}  // namespace vqshell
