// Every exported operation as a callable row: the list is generated from the public headers, and each
// row's argument types are deduced from the function itself, so a new operation joins both sweeps
// without a hand-written row. A call is described by a plan (which chip, which argument at its
// type's maximum, which pointer null); every other integer is 0 and every other pointer leads to a
// zeroed scratch buffer the size of a diagnostic text buffer.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace sweep {

enum class Arg : uint8_t { Integer, Floating, Pointer, Function };

struct Plan {
    uint32_t chip = 0;
    bool chipFirst = true;  // argument 0 is the chip id
    int maxArg = -1;        // this integer argument at its type's maximum
    int nullArg = -1;       // this pointer argument null
};

struct Result {
    bool hasStatus;  // the operation returns a status code (u32, or s32 for the IMA diagnostics)
    uint32_t status;
};

struct Op {
    std::string_view name;
    std::vector<Arg> args;
    Result (*call)(const Plan &);
};

// Every operation the public headers declare, in header order.
const std::vector<Op> &exportedOps();

// Operations whose first argument is not a chip id, and operations the sweeps leave alone, with why.
struct Exception {
    std::string_view name;
    const char *reason;
};
const Exception *noChip(std::string_view name);
const Exception *notCalled(std::string_view name);

// Module field of a status code, from the operation's name (its module word), or -1 where the name
// does not tell (diagnostic commands answer with the status of the operation they call).
int moduleField(std::string_view name);

}  // namespace sweep
