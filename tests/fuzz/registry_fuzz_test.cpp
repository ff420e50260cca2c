// Every diagnostic command of the registry, called many times with random arguments on a chip
// installed on the chip model: in-range, boundary and hostile integers, out-of-range and uninstalled
// chips, short, saturated and null byte strings and 16-bit lists, empty, long and format-laden texts,
// a 48128-byte buffer followed by a guard region, and no buffer at all. No command may crash (the
// sanitizer build turns reads and writes out of bounds into failures), write past the buffer, leave
// an allocation behind or wait in real time.
//
// The registry is walked as it stands, so the commands of a family that arrives later are fuzzed with
// no change here. VQ6192_FUZZ_SEED picks another seed; VQ6192_FUZZ_ITERATIONS more iterations per
// command.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <dlfcn.h>
#include <unistd.h>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "diag/registry.h"
#include "support/test_support.h"

namespace {

using vq::diag::ArgKind;
using vq::diag::ArgValue;
using vq::diag::Command;
using Clock = std::chrono::steady_clock;

constexpr size_t kBufSize = VQ6192_DIAG_BUF_SIZE;
constexpr size_t kGuardSize = 4096;
constexpr char kGuardByte = '\x5A';
constexpr char kFillByte = '\x7E';

// Integers that sit on the edges of the chip's number spaces: VC-4s, AU-3s, tributaries, timeslots,
// E1/T1 framers, CES and PPP channels, bundles, system ports, connections, tables, modules, chips.
constexpr uint32_t kEdges[] = {
    0,      1,      2,       3,          4,          5,          7,          8,    11,   12,   13,
    15,     16,     21,      22,         23,         24,         27,         28,   29,   31,   32,
    33,     63,     64,      83,         84,         216,        217,        255,  256,  262,  263,
    264,    265,    335,     336,        337,        351,        352,        353,  511,  512,  513,
    1023,   1024,   2047,    2048,       2049,       4095,       4096,       8191, 8192, 8193, 0x7FFF,
    0x8000, 0xFFFF, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF,
};

// Chip ids other than the installed one: uninstalled, last valid, the spare record, beyond it.
constexpr uint32_t kOtherChips[] = {0, 263, 264, 265, 0x100, 0xFFFFFFFF};

// Widest first..last listing the fuzzer asks for.
constexpr uint32_t kMaxSpan = 1024;

std::vector<std::string> words(const char *text) {
    std::vector<std::string> out;
    std::string w;
    for (const char *p = text;; ++p) {
        if (*p == ' ' || *p == '\0') {
            if (!w.empty()) {
                out.push_back(w);
            }
            w.clear();
            if (*p == '\0') {
                return out;
            }
        } else {
            w += *p;
        }
    }
}

// Every real sleep of the process, counted: with the virtual clock in force a command must never reach
// one of these.
std::atomic<uint64_t> g_realSleeps{0};

template <typename Fn>
Fn nextSymbol(const char *name) {
    return reinterpret_cast<Fn>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" int nanosleep(const timespec *req, timespec *rem) {
    ++g_realSleeps;
    static const auto real = nextSymbol<int (*)(const timespec *, timespec *)>("nanosleep");
    return real(req, rem);
}

extern "C" int clock_nanosleep(clockid_t clock, int flags, const timespec *req, timespec *rem) {
    ++g_realSleeps;
    static const auto real =
        nextSymbol<int (*)(clockid_t, int, const timespec *, timespec *)>("clock_nanosleep");
    return real(clock, flags, req, rem);
}

extern "C" int usleep(useconds_t us) {
    ++g_realSleeps;
    static const auto real = nextSymbol<int (*)(useconds_t)>("usleep");
    return real(us);
}

extern "C" unsigned int sleep(unsigned int seconds) {
    ++g_realSleeps;
    static const auto real = nextSymbol<unsigned int (*)(unsigned int)>("sleep");
    return real(seconds);
}

namespace {

uint32_t envOr(const char *name, uint32_t fallback) {
    const char *v = std::getenv(name);
    return v != nullptr ? static_cast<uint32_t>(std::strtoul(v, nullptr, 0)) : fallback;
}

class Generator {
  public:
    explicit Generator(uint32_t seed) : rng_(seed) {}

    uint32_t below(uint32_t n) { return std::uniform_int_distribution<uint32_t>(0, n - 1)(rng_); }

    uint32_t chip(uint32_t installed) {
        return below(4) != 0 ? installed : kOtherChips[below(std::size(kOtherChips))];
    }

    uint32_t integer() {
        switch (below(4)) {
            case 0:
                return below(8);
            case 1:
                return kEdges[below(std::size(kEdges))];
            case 2:
                return below(0x10000);
            default:
                return static_cast<uint32_t>(rng_());
        }
    }

    // Arrays are handed over as the shell hands them (at least kMinArrayElems elements, zero after
    // what was given) but never longer, so a command reading past that reads past the allocation; or
    // as a null pointer.
    template <typename T>
    std::vector<T> array(T max) {
        std::vector<T> v;
        switch (below(5)) {
            case 0:  // null pointer
                return v;
            case 1:  // nothing given
                break;
            case 2:  // a few values
                for (uint32_t n = 1 + below(8); n > 0; --n) {
                    v.push_back(static_cast<T>(integer()));
                }
                break;
            case 3:  // saturated
                v.assign(vq::diag::kMinArrayElems, max);
                break;
            default:  // random throughout
                for (size_t n = 0; n < vq::diag::kMinArrayElems; ++n) {
                    v.push_back(static_cast<T>(rng_()));
                }
                break;
        }
        v.resize(std::max(v.size(), vq::diag::kMinArrayElems), 0);
        return v;
    }

    std::string text() {
        switch (below(6)) {
            case 0:
                return "";
            case 1:
                return std::to_string(integer());
            case 2:
                return "%s%s%s%n%x%x%x%999999d";
            case 3:  // a name far longer than any name buffer
                return std::string(70000, 'A');
            case 4: {
                std::string s(1 + below(300), ' ');
                for (char &c : s) {
                    c = static_cast<char>(1 + below(255));
                }
                return s;
            }
            default:
                return "ATM";
        }
    }

  private:
    std::mt19937 rng_;
};

struct Tally {
    uint64_t calls = 0;
    uint64_t nullBuffer = 0;
    double seconds = 0;
};

class RegistryFuzz : public vqtest::ChipTest {};

TEST_F(RegistryFuzz, EveryCommandSurvivesHostileArguments) {
    const uint32_t seed = envOr("VQ6192_FUZZ_SEED", 20261123);
    const uint32_t iterations = envOr("VQ6192_FUZZ_ITERATIONS", 60);
    // A command that is slow on the model (a whole-chip dump) stops at this budget, after at least
    // kMinCalls calls, rather than being left out.
    constexpr double kBudgetSeconds = 0.05;
    constexpr uint32_t kMinCalls = 2;
    // A listing that scans every line of the chip (seconds under the sanitizers) is called once.
    constexpr double kOneCallSeconds = 0.5;
    Generator gen(seed);

    std::vector<char> buf(kBufSize + kGuardSize);
    std::map<std::string, Tally> tally;
    std::vector<std::string> slow;
    std::vector<std::pair<double, std::string>> perCall;
    uint64_t total = 0;
    const auto started = Clock::now();

    // The sleep counter sees the process's sleeps.
    const uint64_t sleeps = g_realSleeps;
    usleep(1);
    ASSERT_EQ(g_realSleeps, sleeps + 1);

    const auto commands = vq::diag::commands();
    ASSERT_FALSE(commands.empty());
    // Each command runs on a freshly installed chip, and its allocations must all be given back once
    // the chip is uninstalled (a dump keeps its buffer for the chip's lifetime).
    ASSERT_EQ(VQ6192_UnInstall_SDK(kChip), 0u);
    const uint64_t uninstalled = vqtest::outstandingAllocations();
    for (const Command &cmd : commands) {
        ASSERT_EQ(VQ6192_Install_SDK(&para), 0u);
        Tally &t = tally[cmd.module];
        const std::vector<std::string> names = words(cmd.args);
        double slowest = 0;
        const auto cmdStart = Clock::now();
        uint32_t n = 0;
        for (; n < iterations; ++n) {
            const double spent = std::chrono::duration<double>(Clock::now() - cmdStart).count();
            if ((n >= kMinCalls && spent > kBudgetSeconds) || (n >= 1 && spent > kOneCallSeconds)) {
                slow.push_back(std::string(cmd.name) + " (" + std::to_string(n) + " calls)");
                break;
            }
            std::vector<ArgValue> args(cmd.argc);
            std::string shown;
            for (size_t i = 0; i < cmd.argc; ++i) {
                ArgValue &a = args[i];
                a.kind = cmd.kinds[i];
                switch (a.kind) {
                    case ArgKind::U32:
                        a.u32 = i == 0 ? gen.chip(kChip) : gen.integer();
                        // A listing walks first..last-1 with no upper cut: keep it within reach.
                        if (names[i] == "last" && i > 0 && a.u32 > args[i - 1].u32 &&
                            a.u32 - args[i - 1].u32 > kMaxSpan) {
                            a.u32 = args[i - 1].u32 + a.u32 % (kMaxSpan + 1);
                        }
                        shown += ' ';
                        shown += std::to_string(a.u32);
                        break;
                    case ArgKind::Bytes:
                        a.bytes = gen.array<uint8_t>(0xFF);
                        shown += a.bytes.empty() ? " null" : " bytes";
                        break;
                    case ArgKind::U16Array:
                        a.u16 = gen.array<uint16_t>(0xFFFF);
                        shown += a.u16.empty() ? " null" : " list";
                        break;
                    case ArgKind::Text:
                        a.text = gen.text();
                        shown += " text[" + std::to_string(a.text.size()) + "]";
                        break;
                }
            }
            const bool withBuffer = (n % 4) != 1;
            std::fill(buf.begin(), buf.begin() + kBufSize, kFillByte);
            std::fill(buf.begin() + kBufSize, buf.end(), kGuardByte);
            const uint64_t virtualBefore = VQ6192_Platform_GetVirtualTimeUs();
            const auto callStart = Clock::now();
            const uint64_t sleepsBefore = g_realSleeps;

            cmd.invoke(args.data(), withBuffer ? buf.data() : nullptr);

            const double callSeconds = std::chrono::duration<double>(Clock::now() - callStart).count();
            const std::string what = std::string(cmd.name) + shown + (withBuffer ? " buf" : " null-buf");
            ASSERT_TRUE(
                std::all_of(buf.begin() + kBufSize, buf.end(), [](char c) { return c == kGuardByte; }))
                << what << ": wrote past the " << kBufSize << "-byte buffer";
            const auto written =
                std::find_if(buf.begin(), buf.begin() + kBufSize, [](char c) { return c != kFillByte; });
            if (withBuffer && written != buf.begin() + kBufSize) {
                ASSERT_NE(std::find(buf.begin(), buf.begin() + kBufSize, '\0'), buf.begin() + kBufSize)
                    << what << ": left text without its terminating zero";
            }
            // Waits run on the virtual clock: seconds of waiting cost no real time.
            ASSERT_EQ(g_realSleeps, sleepsBefore)
                << what << ": slept in real time (and " << VQ6192_Platform_GetVirtualTimeUs() - virtualBefore
                << " us on the virtual clock)";
            slowest = std::max(slowest, callSeconds);
            capture.clear();
            ++t.calls;
            t.nullBuffer += withBuffer ? 0 : 1;
            ++total;
        }
        t.seconds += std::chrono::duration<double>(Clock::now() - cmdStart).count();
        perCall.emplace_back(slowest, cmd.name);
        ASSERT_EQ(VQ6192_UnInstall_SDK(kChip), 0u);
        ASSERT_EQ(vqtest::outstandingAllocations(), uninstalled) << cmd.name << ": allocation not given back";
    }
    ASSERT_EQ(VQ6192_Install_SDK(&para), 0u);

    const double seconds = std::chrono::duration<double>(Clock::now() - started).count();
    std::printf("registry fuzz: seed %u, %zu commands, %llu calls (up to %u per command) in %.2f s\n", seed,
                commands.size(), static_cast<unsigned long long>(total), iterations, seconds);
    for (const auto &[module, t] : tally) {
        std::printf("  %-8s %6llu calls (%llu without buffer) %.2f s\n", module.c_str(),
                    static_cast<unsigned long long>(t.calls), static_cast<unsigned long long>(t.nullBuffer),
                    t.seconds);
    }
    std::sort(perCall.rbegin(), perCall.rend());
    for (size_t i = 0; i < 8 && i < perCall.size(); ++i) {
        std::printf("  slowest call: %-32s %.3f s\n", perCall[i].second.c_str(), perCall[i].first);
    }
    for (const std::string &s : slow) {
        std::printf("  bounded by time: %s\n", s.c_str());
    }
}

}  // namespace
