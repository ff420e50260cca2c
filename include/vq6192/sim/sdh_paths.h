// Chip model: the selector pages of the SDH path overhead. A selector register chooses which path the
// paged byte registers and the trace (index and data registers) show; the model keeps every path's
// bytes and traces, so tests can inject received bytes and traces per path and read back what the
// driver transmitted. The receive pages need 50 ticks after a selection before their bytes are valid;
// the model counts paged reads that come earlier (on the platform's virtual clock).
#pragma once

#include <cstdint>
#include <map>
#include <tuple>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

class SdhPaths : public ChipBlock {
  public:
    // Transmit high-order (key = VC-4), transmit low-order (key = 128 * VC-4 + channel), received
    // high-order and received low-order pages.
    enum class Page : uint8_t { TxHo, TxLo, RxHo, RxLo };

    explicit SdhPaths(ChipModel &model);

    // A paged register (byte address) of path `key`, as the chip holds it; for the transmit high-order
    // selector register only bits 7..0 are per path.
    uint16_t paged(Page page, uint32_t key, uint32_t addr) const;
    void setPaged(Page page, uint32_t key, uint32_t addr, uint16_t value);
    // Trace bytes 0..len-1 of path `key`.
    std::vector<uint8_t> trace(Page page, uint32_t key, size_t len) const;
    void setTrace(Page page, uint32_t key, const std::vector<uint8_t> &bytes);

    // Selector writes that changed or kept the path, and paged reads of a receive page made less than
    // 50 ticks after its selection.
    uint32_t selections(Page page) const { return selections_[index(page)]; }
    uint32_t earlyReads(Page page) const { return earlyReads_[index(page)]; }

  private:
    struct Layout {
        uint32_t selector;
        uint32_t selBit;
        uint32_t selWidth;
        std::vector<uint32_t> regs;
        uint32_t traceIndex;
        uint32_t traceData;
        bool receive;
    };
    static size_t index(Page page) { return static_cast<size_t>(page); }
    uint32_t key(size_t page) const;
    void install(size_t page);
    void noteRead(size_t page);

    ChipModel &model_;
    std::vector<Layout> layouts_;
    std::map<std::tuple<size_t, uint32_t, uint32_t>, uint16_t> regs_;
    std::map<std::tuple<size_t, uint32_t, uint32_t>, uint8_t> traces_;
    uint32_t selections_[4] = {};
    uint32_t earlyReads_[4] = {};
    uint64_t selectedAtUs_[4] = {};
};

}  // namespace vq6192::sim
