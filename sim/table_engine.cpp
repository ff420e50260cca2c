// The chip's indirect table-access blocks. Each block has a table select, an entry address, data
// registers, a command field and a busy bit; a write command stores the write-data registers into the
// selected table memory, a read command loads the entry into the read-data registers. Written from the
// chip's register map, independently of the driver's catalogue.
#include <stdexcept>

#include "vq6192/sim.h"

namespace vq6192::sim {
namespace {

struct Field {
    uint32_t reg;  // register number
    uint32_t startBit;
    uint32_t width;
};

struct BlockLayout {
    uint32_t base;
    Field command;
    uint16_t writeGo;  // command value that starts a write
    uint16_t readGo;   // command value that starts a read
    Field busy;
    Field select;
    Field address;
    uint32_t writeData;  // first write-data register
    uint32_t readData;   // first read-data register
    uint32_t dataRegs;   // data registers moved per command
};

// clang-format off
constexpr BlockLayout kBlocks[] = {
    // base    command            wr rd  busy           select            address            wdata   rdata   regs
    {0x5000, {0x5002, 0, 2},    2, 3, {0x5003, 0, 1},  {0x5000, 0, 6},  {0x5001, 0, 16},  0x5010, 0x5020, 10},  // ATM, PWE3, BM, shaping
    {0x8000, {0x8000, 0, 2},    2, 3, {0x8001, 0, 1},  {0x8002, 0, 16}, {0x8003, 0, 16},  0x8004, 0x8008, 10},  // PPU, multilink, queues
    {0xa000, {0xa000, 0, 2},    1, 3, {0xa001, 0, 1},  {0xa002, 0, 5},  {0xa003, 0, 9},   0xa010, 0xa004, 9},   // CES
    {0x3000, {0x3000, 4, 2},    1, 3, {0x3000, 6, 1},  {0x3000, 0, 4},  {0x3001, 0, 14},  0x3010, 0x3020, 10},  // SA-bit machine
    {0x10ab, {0x10ab, 0, 2},    2, 3, {0x10ac, 0, 1},  {0x10ad, 0, 1},  {0x10ae, 0, 14},  0x10b0, 0x10af, 1},   // timeslot tables
    {0x4000, {0x4000, 0, 2},    2, 3, {0x4001, 0, 1},  {0x4002, 0, 4},  {0x4003, 0, 13},  0x4024, 0x4004, 32},  // Ethernet lookups
    {0x2800, {0x2800, 0, 2},    2, 3, {0x2801, 0, 1},  {0x2802, 0, 4},  {0x2803, 0, 9},   0x2804, 0x280a, 6},   // ATM-TC links
    {0x2201, {0x2201, 13, 2},   1, 3, {0x2201, 15, 1}, {0x2201, 0, 4},  {0x2202, 0, 13},  0x2207, 0x2203, 4},   // IMA processor
    {0x2600, {0x2600, 13, 2},   1, 3, {0x2600, 15, 1}, {0x2600, 0, 4},  {0x2601, 0, 14},  0x2606, 0x2604, 2},   // IMA receive
    {0x2400, {0x2400, 13, 2},   1, 3, {0x2400, 15, 1}, {0x2400, 0, 3},  {0x2401, 0, 14},  0x2410, 0x2430, 21},  // IMA transmit
};
// clang-format on

constexpr size_t kBlockCount = sizeof kBlocks / sizeof kBlocks[0];

constexpr uint32_t addrOf(uint32_t reg) {
    return reg * 2;
}

uint32_t fieldOf(uint16_t reg, const Field &f) {
    return (reg >> f.startBit) & ((1u << f.width) - 1u);
}

uint64_t keyOf(size_t block, uint32_t select, uint32_t address) {
    return (static_cast<uint64_t>(block) << 40) | (static_cast<uint64_t>(select) << 20) | address;
}

}  // namespace

TableEngine::TableEngine(ChipModel &model) : model_(model), state_(kBlockCount) {
    for (size_t b = 0; b < kBlockCount; ++b) {
        const BlockLayout &layout = kBlocks[b];
        // The busy bit is read-only: it is computed on every read and never stored.
        const uint16_t busyMask = static_cast<uint16_t>(1u << layout.busy.startBit);
        model_.onRead(addrOf(layout.busy.reg),
                      [this, b](uint32_t, uint16_t stored) { return onBusyRead(b, stored); });
        model_.onWrite(addrOf(layout.command.reg),
                       [this, b, busyMask, layout](uint32_t, uint16_t value, uint16_t old) {
                           uint16_t stored = value;
                           if (layout.busy.reg == layout.command.reg) {
                               stored = static_cast<uint16_t>(stored & ~busyMask);
                           }
                           onCommand(b, stored, old);
                           return stored;
                       });
        if (layout.busy.reg != layout.command.reg) {
            model_.onWrite(addrOf(layout.busy.reg), [busyMask](uint32_t, uint16_t value, uint16_t) {
                return static_cast<uint16_t>(value & ~busyMask);
            });
        }
    }
}

std::vector<uint32_t> TableEngine::blocks() {
    std::vector<uint32_t> out;
    for (const auto &b : kBlocks) {
        out.push_back(b.base);
    }
    return out;
}

size_t TableEngine::blockIndex(uint32_t block) const {
    for (size_t b = 0; b < kBlockCount; ++b) {
        if (kBlocks[b].base == block) {
            return b;
        }
    }
    throw std::invalid_argument("no table-access block at this register number");
}

uint16_t TableEngine::onBusyRead(size_t block, uint16_t stored) {
    BlockState &s = state_[block];
    const uint16_t busyMask = static_cast<uint16_t>(1u << kBlocks[block].busy.startBit);
    if (s.busyPolls == 0) {
        return static_cast<uint16_t>(stored & ~busyMask);
    }
    if (s.busyPolls != kForever) {
        s.busyPolls--;
    }
    return static_cast<uint16_t>(stored | busyMask);
}

void TableEngine::onCommand(size_t block, uint16_t newValue, uint16_t oldValue) {
    const BlockLayout &layout = kBlocks[block];
    uint32_t command = fieldOf(newValue, layout.command);
    if (command == fieldOf(oldValue, layout.command) ||
        (command != layout.writeGo && command != layout.readGo)) {
        return;
    }
    // Select and address may share the command register: take them from the value being written.
    auto regValue = [&](uint32_t reg) {
        return reg == layout.command.reg ? newValue : model_.peek(addrOf(reg));
    };
    uint32_t select = fieldOf(regValue(layout.select.reg), layout.select);
    uint32_t address = fieldOf(regValue(layout.address.reg), layout.address);
    BlockState &s = state_[block];
    if (s.failIn != 0 && --s.failIn == 0) {
        s.busyPolls = kForever;
        return;
    }
    if (command == layout.readGo) {
        for (const CommandHook &hook : s.hooks) {
            hook(select, address, false);
        }
    }
    if (command == layout.writeGo) {
        Entry e{};
        for (uint32_t k = 0; k < layout.dataRegs; ++k) {
            e[k] = model_.peek(addrOf(layout.writeData + k));
        }
        memory_[keyOf(block, select, address)] = e;
        s.writes++;
        for (const CommandHook &hook : s.hooks) {
            hook(select, address, true);
        }
    } else {
        for (const ReadHook &hook : beforeRead_) {
            hook(layout.base, select, address);
        }
        auto it = memory_.find(keyOf(block, select, address));
        for (uint32_t k = 0; k < layout.dataRegs; ++k) {
            model_.poke(addrOf(layout.readData + k), it == memory_.end() ? 0 : it->second[k]);
        }
        s.reads++;
        for (const ReadHook &hook : afterRead_) {
            hook(layout.base, select, address);
        }
    }
    if (s.commandBusy != 0) {
        s.busyPolls = s.commandBusy;
    }
}

TableEngine::Entry TableEngine::entry(uint32_t block, uint32_t select, uint32_t address) const {
    auto it = memory_.find(keyOf(blockIndex(block), select, address));
    return it == memory_.end() ? Entry{} : it->second;
}

void TableEngine::setEntry(uint32_t block, uint32_t select, uint32_t address, const Entry &value) {
    memory_[keyOf(blockIndex(block), select, address)] = value;
}

void TableEngine::addReadHooks(ReadHook before, ReadHook after) {
    if (before) {
        beforeRead_.push_back(std::move(before));
    }
    if (after) {
        afterRead_.push_back(std::move(after));
    }
}

std::map<uint64_t, TableEngine::Entry> TableEngine::contents() const {
    std::map<uint64_t, Entry> out;
    for (const auto &[key, e] : memory_) {
        if (e != Entry{}) {
            out.emplace(key, e);
        }
    }
    return out;
}

void TableEngine::clear() {
    memory_.clear();
}

void TableEngine::holdBusy(uint32_t block, uint32_t polls) {
    state_[blockIndex(block)].busyPolls = polls;
}

void TableEngine::setCommandBusy(uint32_t block, uint32_t polls) {
    state_[blockIndex(block)].commandBusy = polls;
}

void TableEngine::onTableCommand(uint32_t block, CommandHook hook) {
    state_[blockIndex(block)].hooks.push_back(std::move(hook));
}

void TableEngine::failCommand(uint32_t block, uint32_t n) {
    state_[blockIndex(block)].failIn = n;
}

uint64_t TableEngine::writesExecuted(uint32_t block) const {
    return state_[blockIndex(block)].writes;
}

uint64_t TableEngine::readsExecuted(uint32_t block) const {
    return state_[blockIndex(block)].reads;
}

}  // namespace vq6192::sim
