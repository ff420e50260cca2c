// Chip model of the SDH path overhead selector pages, from the chip's register map.
#include "vq6192/sim/sdh_paths.h"

#include "vq6192/platform.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kTraceIndexMask = 0x3F;
constexpr uint64_t kFetchTicks = 50;

}  // namespace

SdhPaths::SdhPaths(ChipModel &model) : model_(model) {
    layouts_ = {
        // selector  bit width  paged registers                                              index    data
        {0x2DCA0,
         10,
         4,
         {0x2DCA2, 0x2DCA4, 0x2DCA6, 0x2DCA8, 0x2DCAA, 0x2DCAC, 0x2DCAE, 0x2DCB4},
         0x2DCB2,
         0x2DCB0,
         false},
        {0x2DE40,
         0,
         9,
         {0x2DE42, 0x2DE44, 0x2DE46, 0x2DE48, 0x2DE4A, 0x2DE4C, 0x2DE4E, 0x2DE50},
         0x2DE54,
         0x2DE52,
         false},
        {0x2C004, 0, 4, {0x2C012, 0x2C014, 0x2C016, 0x2C018}, 0x2C006, 0x2C010, true},
        {0x2C342, 0, 9, {0x2C362, 0x2C364, 0x2C366, 0x2C368}, 0x2C344, 0x2C360, true},
    };
    for (size_t p = 0; p < layouts_.size(); ++p) {
        install(p);
    }
}

uint32_t SdhPaths::key(size_t page) const {
    const Layout &l = layouts_[page];
    return (model_.peek(l.selector) >> l.selBit) & ((1u << l.selWidth) - 1u);
}

void SdhPaths::noteRead(size_t page) {
    if (layouts_[page].receive && VQ6192_Platform_GetVirtualTimeUs() - selectedAtUs_[page] <
                                      kFetchTicks * VQ6192_Platform_GetTickUs()) {
        earlyReads_[page]++;
    }
}

void SdhPaths::install(size_t p) {
    const Layout &l = layouts_[p];
    const uint16_t selMask = static_cast<uint16_t>(((1u << l.selWidth) - 1u) << l.selBit);
    // Transmit high-order: bits 7..0 of the selector register are byte type 7 of the selected VC-4.
    const bool lowBytePaged = l.selBit >= 8;
    model_.onWrite(l.selector, [this, p, selMask, lowBytePaged](uint32_t addr, uint16_t value, uint16_t old) {
        selections_[p]++;
        selectedAtUs_[p] = VQ6192_Platform_GetVirtualTimeUs();
        if (lowBytePaged) {
            const uint32_t k = (value & selMask) >> layouts_[p].selBit;
            // A write that moves the selector carries the previous path's byte: keep the new path's.
            if ((value & selMask) == (old & selMask)) {
                regs_[{p, k, addr}] = static_cast<uint16_t>(value & 0xFFu);
            }
            return static_cast<uint16_t>(value & selMask);
        }
        return value;
    });
    if (lowBytePaged) {
        model_.onRead(l.selector, [this, p](uint32_t addr, uint16_t stored) {
            auto it = regs_.find({p, key(p), addr});
            return static_cast<uint16_t>(stored | (it == regs_.end() ? 0 : it->second));
        });
    }
    for (uint32_t reg : l.regs) {
        model_.onWrite(reg, [this, p](uint32_t addr, uint16_t value, uint16_t) {
            regs_[{p, key(p), addr}] = value;
            return value;
        });
        model_.onRead(reg, [this, p](uint32_t addr, uint16_t) {
            noteRead(p);
            auto it = regs_.find({p, key(p), addr});
            return it == regs_.end() ? uint16_t{0} : it->second;
        });
    }
    model_.onWrite(l.traceData, [this, p](uint32_t, uint16_t value, uint16_t) {
        traces_[{p, key(p), model_.peek(layouts_[p].traceIndex) & kTraceIndexMask}] =
            static_cast<uint8_t>(value);
        return value;
    });
    model_.onRead(l.traceData, [this, p](uint32_t, uint16_t) {
        noteRead(p);
        auto it = traces_.find({p, key(p), model_.peek(layouts_[p].traceIndex) & kTraceIndexMask});
        return it == traces_.end() ? uint16_t{0} : uint16_t{it->second};
    });
}

uint16_t SdhPaths::paged(Page page, uint32_t key, uint32_t addr) const {
    auto it = regs_.find({index(page), key, addr});
    return it == regs_.end() ? 0 : it->second;
}

void SdhPaths::setPaged(Page page, uint32_t key, uint32_t addr, uint16_t value) {
    regs_[{index(page), key, addr}] = value;
}

std::vector<uint8_t> SdhPaths::trace(Page page, uint32_t key, size_t len) const {
    std::vector<uint8_t> out(len, 0);
    for (size_t i = 0; i < len; ++i) {
        auto it = traces_.find({index(page), key, static_cast<uint32_t>(i)});
        if (it != traces_.end()) {
            out[i] = it->second;
        }
    }
    return out;
}

void SdhPaths::setTrace(Page page, uint32_t key, const std::vector<uint8_t> &bytes) {
    for (size_t i = 0; i < bytes.size(); ++i) {
        traces_[{index(page), key, static_cast<uint32_t>(i)}] = bytes[i];
    }
}

}  // namespace vq6192::sim
