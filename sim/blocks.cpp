// Every block model of the chip, created with each chip model: one line per block.
#include "vq6192/sim.h"
#include "vq6192/sim/atm.h"
#include "vq6192/sim/atm_pwe3.h"
#include "vq6192/sim/ces.h"
#include "vq6192/sim/chip_control.h"
#include "vq6192/sim/clocks.h"
#include "vq6192/sim/ddr.h"
#include "vq6192/sim/ddr_ctrl.h"
#include "vq6192/sim/eth.h"
#include "vq6192/sim/framers.h"
#include "vq6192/sim/ima_processor.h"
#include "vq6192/sim/interrupts.h"
#include "vq6192/sim/mac.h"
#include "vq6192/sim/ppp.h"
#include "vq6192/sim/ram_bist.h"
#include "vq6192/sim/register_window.h"
#include "vq6192/sim/sam.h"
#include "vq6192/sim/sdh_paths.h"
#include "vq6192/sim/telecom.h"

namespace vq6192::sim {

void installBlocks(ChipModel &model) {
    model.block<ChipControlBlock>();
    model.block<InterruptBlock>();
    model.block<RamBistBlock>();
    model.block<DdrBlock>();
    model.block<Framers>();
    model.block<CesBlock>();
    model.block<SdhPaths>();
    model.block<TelecomBus>();
    model.block<SamBlock>();
    model.block<EthBlock>();
    model.block<MacBlock>();
    model.block<ClockBlock>();
    model.block<DdrCtrlBlock>();
    model.block<PppBlock>();
    model.block<RegisterWindow>();
    model.block<AtmBlock>();
    model.block<ImaProcessor>();
    model.block<AtmPwe3Block>();
}

}  // namespace vq6192::sim
