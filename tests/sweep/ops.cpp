#include "sweep/ops.h"

#include <array>
#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

#include "vq6192/vq6192.h"

namespace sweep {
namespace {

// Room for the largest thing an operation writes through a pointer: a diagnostic text buffer.
constexpr size_t kScratchSize = VQ6192_DIAG_BUF_SIZE + 1024;
constexpr size_t kMaxArgs = 16;

struct alignas(16) Scratch {
    unsigned char bytes[kScratchSize];
};

unsigned char *scratch(size_t index) {
    static std::array<std::unique_ptr<Scratch>, kMaxArgs> buffers;
    if (!buffers[index]) {
        buffers[index] = std::make_unique<Scratch>();
    }
    std::memset(buffers[index]->bytes, 0, kScratchSize);
    return buffers[index]->bytes;
}

template <typename T>
constexpr Arg kindOf() {
    if constexpr (std::is_pointer_v<T> && std::is_function_v<std::remove_pointer_t<T>>) {
        return Arg::Function;
    } else if constexpr (std::is_pointer_v<T>) {
        return Arg::Pointer;
    } else if constexpr (std::is_floating_point_v<T>) {
        return Arg::Floating;
    } else {
        static_assert(std::is_integral_v<T>, "an argument kind the sweep does not know");
        return Arg::Integer;
    }
}

template <typename T>
T argument(int index, const Plan &plan) {
    constexpr Arg kind = kindOf<T>();
    if constexpr (kind == Arg::Function) {
        return nullptr;
    } else if constexpr (kind == Arg::Pointer) {
        if (index == plan.nullArg) {
            return nullptr;
        }
        return static_cast<T>(static_cast<void *>(scratch(static_cast<size_t>(index))));
    } else {
        if (index == 0 && plan.chipFirst) {
            return static_cast<T>(plan.chip);
        }
        return index == plan.maxArg ? std::numeric_limits<T>::max() : T{};
    }
}

template <typename R, typename Fn, typename... A, size_t... I>
Result invoke(Fn fn, const Plan &plan, std::index_sequence<I...>) {
    static_assert(sizeof...(A) <= kMaxArgs);
    if constexpr (std::is_void_v<R>) {
        fn(argument<A>(static_cast<int>(I), plan)...);
        return {false, 0};
    } else if constexpr (std::is_same_v<R, uint32_t> || std::is_same_v<R, int32_t>) {
        return {true, static_cast<uint32_t>(fn(argument<A>(static_cast<int>(I), plan)...))};
    } else {
        (void)fn(argument<A>(static_cast<int>(I), plan)...);
        return {false, 0};
    }
}

template <auto F, typename Signature = std::remove_pointer_t<decltype(F)>>
struct Row;

template <auto F, typename R, typename... A>
struct Row<F, R(A...)> {
    static Result call(const Plan &plan) {
        return invoke<R, decltype(F), A...>(F, plan, std::index_sequence_for<A...>{});
    }
    static Op op(std::string_view name) { return {name, {kindOf<A>()...}, call}; }
};

// The trace point takes a format and its values; it is called with the format alone.
template <auto F, typename R, typename... A>
struct Row<F, R(A..., ...)> {
    static Result call(const Plan &plan) {
        return invoke<R, decltype(F), A...>(F, plan, std::index_sequence_for<A...>{});
    }
    static Op op(std::string_view name) { return {name, {kindOf<A>()...}, call}; }
};

constexpr Exception kNoChip[] = {
    {"VQ6192_Install_SDK", "takes the install record, which carries the chip id"},
    {"VQ6192_ATM_CheckDoubleNotZero", "a number test"},
    {"COUNT_ZERO_NUM", "a bit count"},
    {"initcdkmac", "takes nothing"},
    {"VQ6192_Framer_GetTsCfg2", "takes a timeslot record that names the chip"},
    {"strcc", "parses a text"},
    {"VQ6192_GetTabelDataSizeById", "looks up the catalogue"},
    {"VQ6192_TBL_EntryPrintf", "prints an entry"},
    {"VQ6192_TBL_MemberPrintf", "prints an entry"},
    {"VQ6192_TBL_Sprintf", "prints a field"},
    {"vq6192_fileopen_func", "a dump file hook"},
    {"vq6192_filewrite_func", "a dump file hook"},
    {"vq6192_fileclose_func", "a dump file hook"},
};

constexpr Exception kNotCalled[] = {
    {"VQ6192_Platform_", "test controls of the platform layer (hooks, clock, fault injection)"},
    {"VQ6192_Install_SDK", "installs; its refusals are covered by the registry tests"},
    {"VQ6192_UnInstall_SDK", "would remove the chip under test"},
    {"VQ6192_Init_ReadWriFun", "would unplug the chip model from the chip under test"},
    {"strcc", "its argument is the address of a text"},
    {"VQ6192_TBL_MemberPrintf", "prints a member list the caller hands over, with its count"},
};

const Exception *find(const auto &list, std::string_view name) {
    for (const Exception &e : list) {
        if (name == e.name || (e.name.back() == '_' && name.starts_with(e.name))) {
            return &e;
        }
    }
    return nullptr;
}

}  // namespace

const Exception *noChip(std::string_view name) {
    return find(kNoChip, name);
}

const Exception *notCalled(std::string_view name) {
    return find(kNotCalled, name);
}

int moduleField(std::string_view name) {
    // Module words of the operation names and the module field of their status codes.
    static constexpr std::pair<std::string_view, int> kModules[] = {
        {"VQ6192_Base_", 1},        {"VQ6192_ATM_", 2},  {"VQ6192_CES_", 3},     {"VQ6192_PPP_", 4},
        {"VQ6192_ETH_", 5},         {"VQ6192_MAC_", 6},  {"VQ6192_SDH_", 8},     {"VQ6192_Telecom_", 8},
        {"VQ6192_SAM_", 9},         {"VQ6192_INT_", 10}, {"VQ6192_DUMP_", 11},   {"VQ6192_Read_Table", 12},
        {"VQ6192_Write_Table", 12}, {"VQ6192_IMA_", 13}, {"VQ6192_Framer_", 14},
    };
    for (const auto &[prefix, module] : kModules) {
        if (name.starts_with(prefix)) {
            return module;
        }
    }
    return -1;
}

const std::vector<Op> &exportedOps() {
// The trace point's format-checking attribute does not travel into a template argument; that is all
// this warning says.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-attributes"
#define VQ_OP(fn) Row<&fn>::op(#fn),
    static const std::vector<Op> ops = {
#include "exported_ops.inc"
    };
#undef VQ_OP
#pragma GCC diagnostic pop
    return ops;
}

}  // namespace sweep
