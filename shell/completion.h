// Tab completion of a command line: command names first, then each argument by what it stands for
// (installed chip ids, table names and ids, the members of the table given before, module names),
// from the same command rows that run the commands.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vqshell {

class Session;

struct Completion {
    size_t start = 0;                     // where the word being completed begins in the line
    std::vector<std::string> candidates;  // sorted; each one a whole replacement for that word
};

// Candidates for the last word of `line`, the text before the cursor. Names match in any case; ids
// (chips aside) are offered once a digit has been typed, so that a bare Tab lists names.
Completion complete(const Session &session, std::string_view line);

// The longest start that all candidates share, compared in any case and spelled as the first one.
std::string commonStart(const std::vector<std::string> &candidates);

}  // namespace vqshell
