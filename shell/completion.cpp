#include "completion.h"

#include <algorithm>
#include <cctype>
#include <cstdint>

#include "arguments.h"
#include "session.h"
#include "vq6192/vq6192.h"

namespace vqshell {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool startsWith(std::string_view name, std::string_view prefix) {
    if (prefix.size() > name.size()) {
        return false;
    }
    for (size_t i = 0; i < prefix.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(name[i])) !=
            std::tolower(static_cast<unsigned char>(prefix[i]))) {
            return false;
        }
    }
    return true;
}

void addIfMatches(std::vector<std::string> *out, std::string_view name, std::string_view prefix) {
    if (startsWith(name, prefix)) {
        out->emplace_back(name);
    }
}

void addIds(std::vector<std::string> *out, uint32_t count, std::string_view prefix) {
    for (uint32_t i = 0; i < count; ++i) {
        addIfMatches(out, std::to_string(i), prefix);
    }
}

bool typedDigit(std::string_view prefix) {
    return !prefix.empty() && std::isdigit(static_cast<unsigned char>(prefix[0])) != 0;
}

// The argument name that the word at `index` (0: first argument) stands for; a last name ending in
// "..." covers every further word.
std::string argNameAt(const std::vector<std::string> &names, size_t index) {
    if (index < names.size()) {
        return names[index];
    }
    if (!names.empty() && names.back().ends_with("...")) {
        return names.back();
    }
    return "";
}

std::string bareName(std::string name) {
    if (name.ends_with("...")) {
        name.resize(name.size() - 3);
    }
    if (name.size() >= 2 && name.front() == '[' && name.back() == ']') {
        name = name.substr(1, name.size() - 2);
    }
    return name;
}

// Members of the table named by the last table argument before the word at `index`.
void addMembers(std::vector<std::string> *out, const std::vector<std::string> &names,
                const std::vector<std::string> &args, size_t index, std::string_view prefix) {
    for (size_t j = index; j-- > 0;) {
        if (argRole(bareName(argNameAt(names, j))) != ArgRole::Table) {
            continue;
        }
        uint32_t table = 0;
        if (tableByNameOrId(args[j], &table)) {
            for (const std::string &member : tableMembers(table)) {
                addIfMatches(out, member, prefix);
            }
        }
        return;
    }
}

}  // namespace

Completion complete(const Session &session, std::string_view line) {
    Completion result;
    // The command under the cursor starts after the last ';'; nothing completes inside quotes or a
    // comment.
    size_t commandStart = 0;
    bool quoted = false;
    for (size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quoted) {
            if (c == '\\') {
                ++i;
            } else if (c == '"') {
                quoted = false;
            }
        } else if (c == '"') {
            quoted = true;
        } else if (c == '#') {
            return result;
        } else if (c == ';') {
            commandStart = i + 1;
        }
    }
    if (quoted) {
        return result;
    }
    std::vector<std::string> words;
    size_t i = commandStart;
    size_t wordStart = line.size();
    while (i < line.size()) {
        while (i < line.size() && isBlank(line[i])) {
            ++i;
        }
        const size_t begin = i;
        while (i < line.size() && !isBlank(line[i])) {
            ++i;
        }
        if (i == line.size()) {
            wordStart = begin;  // the word being typed, possibly empty
        } else {
            words.emplace_back(line.substr(begin, i - begin));
        }
    }
    result.start = wordStart;
    const std::string_view prefix = line.substr(wordStart);
    std::vector<std::string> &out = result.candidates;

    if (words.empty()) {
        for (const std::string &name : session.commandNames()) {
            addIfMatches(&out, name, prefix);
        }
    } else {
        std::vector<std::string> names;
        if (words[0] == "help") {
            names = {"command..."};
        } else if (!session.argumentNames(words[0], &names)) {
            return result;
        }
        const std::vector<std::string> args(words.begin() + 1, words.end());
        const size_t index = args.size();
        switch (argRole(bareName(argNameAt(names, index)))) {
            case ArgRole::Chip:
                addIds(&out, session.chipCount(), prefix);
                break;
            case ArgRole::Table:
                if (typedDigit(prefix)) {
                    addIds(&out, VQ6192_CHIP_TABLE_NUM, prefix);
                } else {
                    for (uint32_t t = 0; t < VQ6192_CHIP_TABLE_NUM; ++t) {
                        // Only names that lead back to this table: the "Reserved" rows name none.
                        uint32_t id = 0;
                        const char *name = g_astVQ6192TblEntryList[t].pszName;
                        if (tableByName(name, &id) && id == t) {
                            addIfMatches(&out, name, prefix);
                        }
                    }
                }
                break;
            case ArgRole::Member:
                addMembers(&out, names, args, index, prefix);
                break;
            case ArgRole::Module:
                if (typedDigit(prefix)) {
                    addIds(&out, VQ6192_MODULE_NUM, prefix);
                } else {
                    for (uint32_t m = 0; m < VQ6192_MODULE_NUM; ++m) {
                        addIfMatches(&out, g_pszModule[m], prefix);
                    }
                }
                break;
            case ArgRole::Command:
                for (const std::string &name : session.commandNames()) {
                    addIfMatches(&out, name, prefix);
                }
                break;
            case ArgRole::Plain:
                break;
        }
    }
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
    return result;
}

std::string commonStart(const std::vector<std::string> &candidates) {
    if (candidates.empty()) {
        return "";
    }
    std::string common = candidates[0];
    for (const std::string &c : candidates) {
        size_t n = 0;
        while (n < common.size() && n < c.size() &&
               std::tolower(static_cast<unsigned char>(common[n])) ==
                   std::tolower(static_cast<unsigned char>(c[n]))) {
            ++n;
        }
        common.resize(n);
    }
    return common;
}

}  // namespace vqshell
