// What a command argument stands for, known by its name in the command's argument list ("chip",
// "tableId", "member", "module", ...). The same names run the commands, complete them on Tab and
// explain them in help, for the diagnostic registry's rows and the shell's own commands alike.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vqshell {

enum class ArgRole : uint8_t {
    Plain,    // nothing to complete: an integer, a byte string, text
    Chip,     // an installed chip id
    Table,    // a chip table, by catalogue name or id
    Member,   // a member name of the table given before it
    Module,   // a print-control module, by name or id
    Command,  // a command name (help NAME)
};

ArgRole argRole(std::string_view name);

// How help describes an argument of that role ("table name or id"); null for Plain.
const char *argRoleKind(ArgRole role);

// Chip tables (ids 0..216) by catalogue name, in any case; the "Reserved" rows have no name to use.
bool tableByName(std::string_view name, uint32_t *id);

// Print-control modules by name ("ATM", "frm"), in any case.
bool moduleByName(std::string_view name, uint32_t *id);

// A table given by name or id: its id when it is a chip table.
bool tableByNameOrId(std::string_view word, uint32_t *id);

// Members of a chip table, in catalogue order.
std::vector<std::string> tableMembers(uint32_t id);

// Lower-case copy, for names compared in any case.
std::string lowerCase(std::string_view s);

}  // namespace vqshell
