// Chip model of the telecom bus, from the chip's register map.
#include "vq6192/sim/telecom.h"

namespace vq6192::sim {

TelecomBus::TelecomBus(ChipModel &model) : model_(model) {
    for (uint32_t port = 0; port < 4; ++port) {
        model_.onRead(b2CounterAddr(port), [this](uint32_t addr, uint16_t stored) {
            model_.poke(addr, 0);
            return stored;
        });
    }
}

void TelecomBus::setB2Count(uint32_t port, uint16_t count) {
    model_.poke(b2CounterAddr(port), count);
}

}  // namespace vq6192::sim
