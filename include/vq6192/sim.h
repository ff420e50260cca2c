// VQ6192 chip model: a register-level model of one chip that plugs into the driver through the host
// register functions (or the indirect path), for tests, the debug shell and host development without a
// board. C++ only.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "vq6192/core.h"

namespace vq6192::sim {

// One bus access as the model saw it. For field accesses `value` is the field value and startBit and
// width name the field; for plain accesses they are 0 and 16.
enum class BusOp : uint8_t { Read, Write, FieldRead, FieldWrite };

struct BusAccess {
    BusOp op;
    uint32_t addr;
    uint32_t value;
    uint8_t startBit;
    uint8_t width;
    bool operator==(const BusAccess &) const = default;
};

struct BusCounters {
    uint64_t reads = 0;
    uint64_t writes = 0;
    uint64_t fieldReads = 0;
    uint64_t fieldWrites = 0;
    uint64_t total() const { return reads + writes + fieldReads + fieldWrites; }
};

class ChipModel;

// A block model: a part of the chip (DDR controller, framers, ...) that contributes register
// behaviours and state to a chip model. Every block is created with the model (sim/blocks.cpp lists
// them) and reached with ChipModel::block<T>().
class ChipBlock {
  public:
    virtual ~ChipBlock() = default;
};

// The chip's ten indirect table-access blocks and the table memories behind them. Memories are keyed
// by block (its base register number), select code and entry address, and hold one entry as up to 32
// 16-bit halves in data-register order.
class TableEngine {
  public:
    static constexpr uint32_t kMaxDataRegs = 32;
    static constexpr uint32_t kForever = UINT32_MAX;
    using Entry = std::array<uint16_t, kMaxDataRegs>;

    explicit TableEngine(ChipModel &model);

    Entry entry(uint32_t block, uint32_t select, uint32_t address) const;
    void setEntry(uint32_t block, uint32_t select, uint32_t address, const Entry &value);
    void clear();

    // The busy bit of a block reads 1 for the next n polls (kForever: until changed).
    void holdBusy(uint32_t block, uint32_t polls);
    // Every command of a block keeps its busy bit set for n polls after it started.
    void setCommandBusy(uint32_t block, uint32_t polls);

    // Block models that stand behind a table (FIFOs, counters that move): `hook` is told of every
    // command of the block, before a read loads its entry and after a write stored it.
    using CommandHook = std::function<void(uint32_t select, uint32_t address, bool write)>;
    void onTableCommand(uint32_t block, CommandHook hook);
    // The n-th table command of a block from now on (1: the next) is not carried out and leaves the
    // busy bit set for ever; 0 cancels.
    void failCommand(uint32_t block, uint32_t n);

    // Every stored entry that is not all zeros, by its memory key (block, select code and address), to
    // compare two models' tables.
    std::map<uint64_t, Entry> contents() const;

    uint64_t writesExecuted(uint32_t block) const;
    uint64_t readsExecuted(uint32_t block) const;

    // Hooks around every read command: `before` runs before the entry is loaded into the read-data
    // registers (it may change the entry), `after` once it is loaded (read-clear counters). Both get the
    // block, the select code and the entry address.
    using ReadHook = std::function<void(uint32_t block, uint32_t select, uint32_t address)>;
    void addReadHooks(ReadHook before, ReadHook after);
    // Register numbers of the blocks the model knows.
    static std::vector<uint32_t> blocks();

  private:
    struct BlockState {
        uint32_t busyPolls = 0;
        uint32_t commandBusy = 0;
        uint32_t failIn = 0;
        std::vector<CommandHook> hooks;
        uint64_t writes = 0;
        uint64_t reads = 0;
    };
    void onCommand(size_t block, uint16_t newValue, uint16_t oldValue);
    uint16_t onBusyRead(size_t block, uint16_t stored);
    size_t blockIndex(uint32_t block) const;

    ChipModel &model_;
    std::vector<BlockState> state_;
    std::unordered_map<uint64_t, Entry> memory_;
    std::vector<ReadHook> beforeRead_;
    std::vector<ReadHook> afterRead_;
};

class ChipModel {
  public:
    ChipModel();
    ~ChipModel();
    ChipModel(const ChipModel &) = delete;
    ChipModel &operator=(const ChipModel &) = delete;

    // Becomes chip `chip`'s host register functions (VQ6192_Init_ReadWriFun); detach() clears them.
    // One model per chip id.
    void attach(uint32_t chip);
    void detach();
    uint32_t chip() const { return chip_; }

    // An install record whose arbitration, card-present and indirect hooks lead to this model. With
    // `indirect` set, plain register operations take the indirect path (offset = byte address).
    VQ6192_INSTALL_PARA installPara(uint32_t chip, bool indirect = false) const;

    // Register file, byte-addressed (even addresses). peek and poke have no side effects.
    uint16_t peek(uint32_t addr) const;
    void poke(uint32_t addr, uint16_t value);
    void reset();  // all registers back to 0 and the odd-access count cleared; behaviours and tables kept
    // Every register that is not 0, by byte address, to compare two models' register files.
    std::map<uint32_t, uint16_t> registers() const;
    // Host accesses at an odd byte address: the chip's registers are 16 bits wide at even addresses,
    // so any such access is an address fault of the driver.
    uint64_t oddAccesses() const { return oddAccesses_; }

    // Bus-side accesses, as the host functions perform them (behaviours, stuck bits, trace, counters).
    uint16_t busRead(uint32_t addr);
    void busWrite(uint32_t addr, uint16_t value);
    uint32_t busReadField(uint32_t addr, uint32_t startBit, uint32_t width);
    void busWriteField(uint32_t addr, uint32_t value, uint32_t startBit, uint32_t width);

    // Per-address behaviours contributed by block models. A read behaviour gets the stored value and
    // returns what the bus sees; a write behaviour gets the written and the old value and returns what
    // is stored.
    using ReadFn = std::function<uint16_t(uint32_t addr, uint16_t stored)>;
    using WriteFn = std::function<uint16_t(uint32_t addr, uint16_t written, uint16_t old)>;
    void onRead(uint32_t addr, ReadFn fn);
    void onWrite(uint32_t addr, WriteFn fn);

    // Stuck bits: the bits of `mask` read as `value` whatever is written.
    void stickBits(uint32_t addr, uint16_t mask, uint16_t value);
    void clearStuckBits();

    // Bus trace (off by default) and counters (always on).
    void setTrace(bool on) { tracing_ = on; }
    const std::vector<BusAccess> &trace() const { return trace_; }
    void clearTrace() { trace_.clear(); }
    const BusCounters &counters() const { return counters_; }
    void resetCounters() { counters_ = {}; }

    // Host hooks and their faults.
    void setCardPresent(bool present) { cardPresent_ = present; }
    void refuseArbitration(uint32_t times) { refuseArbitration_ = times; }
    uint64_t arbitrationsTaken() const { return arbitrationsTaken_; }
    uint64_t arbitrationsGiven() const { return arbitrationsGiven_; }
    uint64_t cardPresentAsked() const { return cardPresentAsked_; }

    TableEngine &tables() { return tables_; }

    // The block model of type T (created with the model).
    template <typename T>
    T &block() {
        auto it = blocks_.find(std::type_index(typeid(T)));
        if (it == blocks_.end()) {
            it = blocks_.emplace(std::type_index(typeid(T)), std::make_unique<T>(*this)).first;
        }
        return static_cast<T &>(*it->second);
    }

    // The hooks as host functions, found by chip id or handle.
    static uint32_t hookGetArbitrate(uint32_t chip);
    static uint32_t hookGiveArbitrate(uint32_t chip);
    static uint32_t hookCardPresent(uint32_t chip);
    static uint32_t indirectWrite16(uintptr_t handle, uint32_t offset, uint16_t value);
    static uint32_t indirectRead16(uintptr_t handle, uint32_t offset, uint16_t *value);
    static ChipModel *attached(uint32_t chip);

  private:
    static constexpr uint32_t kPageShift = 13;  // 8 KiB of registers per page
    static constexpr uint32_t kPageRegs = 1u << (kPageShift - 1);
    struct Page {
        std::array<uint16_t, kPageRegs> regs{};
        bool special = false;  // some register of the page has a behaviour or stuck bits
    };
    struct Special {
        ReadFn read;
        WriteFn write;
        uint16_t stuckMask = 0;
        uint16_t stuckValue = 0;
    };

    Page *page(uint32_t addr, bool create);
    const Page *page(uint32_t addr) const;
    Special &special(uint32_t addr);
    uint16_t load(uint32_t addr);
    void store(uint32_t addr, uint16_t value);
    void record(BusOp op, uint32_t addr, uint32_t value, uint32_t startBit, uint32_t width);

    std::unordered_map<uint32_t, std::unique_ptr<Page>> pages_;
    mutable uint32_t lastPageIndex_ = UINT32_MAX;
    mutable Page *lastPage_ = nullptr;
    std::unordered_map<uint32_t, Special> special_;

    bool tracing_ = false;
    std::vector<BusAccess> trace_;
    BusCounters counters_;

    uint32_t chip_ = UINT32_MAX;
    bool cardPresent_ = true;
    uint32_t refuseArbitration_ = 0;
    uint64_t arbitrationsTaken_ = 0;
    uint64_t arbitrationsGiven_ = 0;
    uint64_t cardPresentAsked_ = 0;
    uint64_t oddAccesses_ = 0;

    TableEngine tables_;
    std::unordered_map<std::type_index, std::unique_ptr<ChipBlock>> blocks_;
};

// Creates every block model of a chip model (called by its constructor).
void installBlocks(ChipModel &model);

}  // namespace vq6192::sim
