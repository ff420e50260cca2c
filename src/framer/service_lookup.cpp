// Which E1/T1 channel carries a service: a scan of the E1/T1 timeslot tables.
#include "core/entry_field.h"
#include "framer/framer_internal.h"
#include "vq6192/ppp.h"
#include "vq6192/table.h"

namespace {

constexpr uint32_t kIngressTable = vq::tableId("Tsulet1tab");
constexpr uint32_t kEgressTable = vq::tableId("Tsdlet1tab");
constexpr uint32_t kTimeslots = 32;
constexpr uint32_t kSvcPpp = 1;
constexpr uint16_t kNoChannel = 2047;
// Framer error 3 without chip bits.
constexpr uint32_t kNotFound = (VQ6192_ERR_MODULE_FRAMER << 16) | vq::framer::kErrTimeout;

}  // namespace

// The first channel 0..335 one of whose 32 timeslot entries carries the service (enabled, service
// type, rate and channel) answers. No match, or a table read that fails, gives framer error 3
// without chip bits and leaves the output at 2047.
extern "C" VQ6192_API uint32_t VQ6192_Framer_GetE1FromSvrNo(uint32_t chip, uint32_t svcChnl, uint32_t dir,
                                                            uint32_t svcType, uint32_t speed, uint16_t *e1) {
    using namespace vq::framer;
    if (!vq::validChip(chip) || dir > VQ6192_BASE_SRV_DIRECT_EGRESS || svcType > 3 || speed > 4 ||
        e1 == nullptr) {
        return paraErr(chip);
    }
    *e1 = kNoChannel;
    uint32_t channel = svcChnl;
    if (svcType == kSvcPpp) {
        channel = VQ6192_PPP_CalcPppChnl(chip, svcChnl, dir);
    }
    const uint32_t key = 0x8000u | (svcType << 13) | ((speed << 11) & 0x7800u) | channel;
    const uint32_t table = dir == VQ6192_BASE_SRV_DIRECT_INGRESS ? kIngressTable : kEgressTable;
    for (uint32_t ch = 0; ch < VQ6192_FRM_E1_NUM; ++ch) {
        for (uint32_t ts = 0; ts < kTimeslots; ++ts) {
            uint32_t entry = 0;
            if (VQ6192_Read_Table(chip, table, (ch << 5) | ts, &entry) != 0) {
                return kNotFound;
            }
            if (entry == key) {
                *e1 = static_cast<uint16_t>(ch);
                return 0;
            }
        }
    }
    return kNotFound;
}
