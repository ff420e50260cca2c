// Chip model: the memory-mapped register window.
#include "vq6192/sim/register_window.h"

namespace vq6192::sim {

RegisterWindow::RegisterWindow(ChipModel &model) : model_(model) {}

std::vector<uint16_t> &RegisterWindow::memory() {
    if (mem_.empty()) {
        mem_.assign(kBytes / 2, 0);
    }
    return mem_;
}

uintptr_t RegisterWindow::base() {
    return reinterpret_cast<uintptr_t>(memory().data());
}

void RegisterWindow::sync() {
    std::vector<uint16_t> &m = memory();
    for (uint32_t i = 0; i < m.size(); ++i) {
        m[i] = model_.peek(i * 2);
    }
}

uint16_t RegisterWindow::at(uint32_t addr) {
    return addr < kBytes ? memory()[addr / 2] : 0;
}

void RegisterWindow::set(uint32_t addr, uint16_t value) {
    if (addr < kBytes) {
        memory()[addr / 2] = value;
    }
}

}  // namespace vq6192::sim
