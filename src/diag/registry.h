// The diagnostic command registry: one row per command with its name, module, argument names and kinds
// and a one-line help. The debug shell and the tests read the same rows. Each module family keeps its
// rows in its own file of src/diag/ (VQ6192_DIAG_COMMAND, argument kinds taken from the C signature)
// and hands them over through its xxxCommands() function below; registry.cpp joins the families.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vq::diag {

// What a command argument is, by the C type of its parameter:
//   U32       uint32_t                 integer (decimal or 0x hex); the chip id is the first of them
//   Bytes     const uint8_t *          byte string, given as hex
//   U16Array  const uint16_t *         comma-separated 16-bit integers
//   Text      const char *             text
// A trailing `char *` is the 48128-byte output buffer and is not an argument.
enum class ArgKind : uint8_t { U32, Bytes, U16Array, Text };

const char *argKindName(ArgKind kind);

// Byte strings and arrays are handed over padded with zeros to at least this many elements, so that a
// command reading a fixed-size array, or as many bytes as its length argument allows (a PPP protocol
// packet: up to 4095), never reads past what was parsed.
inline constexpr size_t kMinArrayElems = 4096;

struct ArgValue {
    ArgKind kind = ArgKind::U32;
    uint32_t u32 = 0;
    std::vector<uint8_t> bytes;
    std::vector<uint16_t> u16;
    std::string text;
};

using Invoke = uint32_t (*)(const ArgValue *args, char *buf);

struct Command {
    const char *name;
    const char *module;  // help groups commands by it
    const char *args;    // argument names, blank-separated
    const char *help;    // one line
    const ArgKind *kinds;
    uint8_t argc;
    Invoke invoke;
};

// Every command of every family, in family order, and one by exact name.
std::span<const Command> commands();
const Command *findCommand(std::string_view name);

// The rows of each module family, one file each.
std::span<const Command> chipCommands();    // chip.cpp: print control, tables, chip health, dump
std::span<const Command> sdhCommands();     // sdh.cpp: SDH/SONET mapper and telecom bus
std::span<const Command> framerCommands();  // framer.cpp: framers, timeslots, PRBS
std::span<const Command> atmCommands();     // atm.cpp: ATM, OAM, ATM pseudowires
std::span<const Command> imaCommands();     // ima.cpp
std::span<const Command> pppCommands();     // ppp.cpp: PPP and multilink
std::span<const Command> cesCommands();     // ces.cpp: CES and clock recovery
std::span<const Command> ethCommands();     // eth.cpp: Ethernet side and MAC ports

// ---- Adapting a C diagnostic command to the registry --------------------------------------------------

template <typename T>
struct ArgTraits;
template <>
struct ArgTraits<uint32_t> {
    static constexpr ArgKind kind = ArgKind::U32;
    static uint32_t get(const ArgValue &v) { return v.u32; }
};
template <>
struct ArgTraits<const uint8_t *> {
    static constexpr ArgKind kind = ArgKind::Bytes;
    static const uint8_t *get(const ArgValue &v) { return v.bytes.data(); }
};
template <>
struct ArgTraits<const uint16_t *> {
    static constexpr ArgKind kind = ArgKind::U16Array;
    static const uint16_t *get(const ArgValue &v) { return v.u16.data(); }
};
template <>
struct ArgTraits<const char *> {
    static constexpr ArgKind kind = ArgKind::Text;
    static const char *get(const ArgValue &v) { return v.text.c_str(); }
};

template <auto Fn>
struct Adapter;

template <typename R, typename... A, R (*Fn)(A...)>
struct Adapter<Fn> {
    static constexpr bool kIsBuf[] = {std::is_same_v<A, char *>..., false};
    static constexpr size_t argc = (0 + ... + (std::is_same_v<A, char *> ? 0 : 1));

    // Index of parameter P among the parsed arguments.
    static constexpr size_t valueIndex(size_t p) {
        size_t n = 0;
        for (size_t i = 0; i < p; ++i) {
            n += kIsBuf[i] ? 0 : 1;
        }
        return n;
    }

    template <typename T>
    static constexpr void addKind(std::array<ArgKind, argc> &kinds, size_t &n) {
        if constexpr (!std::is_same_v<T, char *>) {
            kinds[n++] = ArgTraits<T>::kind;
        }
    }

    static constexpr std::array<ArgKind, argc> makeKinds() {
        std::array<ArgKind, argc> kinds{};
        [[maybe_unused]] size_t n = 0;  // unused by a command without arguments
        (addKind<A>(kinds, n), ...);
        return kinds;
    }
    static constexpr std::array<ArgKind, argc> kinds = makeKinds();

    template <typename T, size_t P>
    static T pick(const ArgValue *args, char *buf) {
        if constexpr (std::is_same_v<T, char *>) {
            return buf;
        } else {
            return ArgTraits<T>::get(args[valueIndex(P)]);
        }
    }

    template <size_t... P>
    static uint32_t call(const ArgValue *args, char *buf, std::index_sequence<P...>) {
        if constexpr (std::is_void_v<R>) {
            Fn(pick<A, P>(args, buf)...);
            return 0;
        } else {
            return static_cast<uint32_t>(Fn(pick<A, P>(args, buf)...));
        }
    }

    static uint32_t invoke(const ArgValue *args, char *buf) {
        return call(args, buf, std::index_sequence_for<A...>{});
    }
};

// Number of blank-separated words of an argument list.
consteval size_t wordCount(std::string_view s) {
    size_t n = 0;
    bool inWord = false;
    for (char c : s) {
        if (c == ' ') {
            inWord = false;
        } else if (!inWord) {
            inWord = true;
            ++n;
        }
    }
    return n;
}

template <auto Fn>
consteval Command makeCommand(const char *name, const char *module, const char *args, const char *help) {
    using A = Adapter<Fn>;
    if (wordCount(args) != A::argc) {
        throw "the argument names do not match the command's parameters";
    }
    return {name, module, args, help, A::kinds.data(), static_cast<uint8_t>(A::argc), &A::invoke};
}

}  // namespace vq::diag

// One registry row: the command, its module, its argument names and its one-line help.
#define VQ6192_DIAG_COMMAND(fn, module, args, help) ::vq::diag::makeCommand<fn>(#fn, module, args, help)
