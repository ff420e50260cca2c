// The soak's operation mix: configuration, status and diagnostic operations of several modules, each
// drawn with random arguments from a per-chip generator and recorded so that it can be played again on
// another chip model. Shared by the soak test and its benchmark.
#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <vector>

namespace vqsoak {

enum class OpKind : uint8_t { Config, Status, Diag };

// One operation of the mix. `bounds` gives each argument's range [0, bound): a bound one past the
// operation's last valid value lets a few calls fail their parameter check. `run` returns what the
// caller saw: the status code in the low word and a hash of the outputs in the high word.
struct Op {
    const char *name;
    OpKind kind;
    uint32_t bounds[5];
    uint64_t (*run)(uint32_t chip, const uint32_t *args, char *buf);
};

std::span<const Op> operations();

// Status and alarm reads that only read plain registers and change nothing on the chip, for the threads
// that read the chips while their workers configure them. Always called with valid arguments: the
// result is the status code.
std::span<const Op> readerOperations();

// One logged operation.
struct Step {
    uint16_t op;
    uint32_t args[5];
    uint64_t seen;
};

// Per-chip generator: the same seed and chip draw the same operations whatever thread runs them.
std::mt19937 chipRng(uint32_t seed, uint32_t chip);
Step draw(std::mt19937 &rng, std::span<const Op> ops);
// Draws the arguments of operation `op` of `ops`.
Step drawArgs(std::mt19937 &rng, std::span<const Op> ops, uint16_t op);

// Draws, runs and returns one step of the mix on `chip`.
Step runOne(uint32_t chip, std::mt19937 &rng, char *buf);
// Runs a logged step again; returns what the caller saw this time.
uint64_t replay(uint32_t chip, const Step &step, char *buf);

// Size of the diagnostic text buffer the diagnostic operations write into.
inline constexpr size_t kDiagBufSize = 48128;

}  // namespace vqsoak
