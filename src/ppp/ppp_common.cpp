// Shared helpers of the PPP module: the parameter error, table field and register access, waits and the
// bundle queue drain.
#include "platform/osal.h"
#include "ppp/ppp_internal.h"

namespace vq::ppp {

uint32_t paraErr(uint32_t chip, const char *condition) {
    VQ6192_Printf(chip, VQ6192_MODULE_PPP, VQ6192_PRINT_PARA_WRONG, "ParaErr. [ %s ]\r\n", condition);
    return status(chip, kErrPara);
}

uint32_t setFields(uint32_t chip, uint32_t index, std::initializer_list<FieldValue> fields) {
    if (fields.size() == 0) {
        return 0;
    }
    const uint32_t table = fields.begin()->field.table;
    Entry e;
    const uint32_t rc = readEntry(chip, table, index, e);
    if (rc != 0) {
        return rc;
    }
    for (const FieldValue &f : fields) {
        setField(e.w, f.field, f.value);
    }
    return writeEntry(chip, table, index, e);
}

uint32_t getField(uint32_t chip, uint32_t index, EntryField f, uint32_t *value) {
    Entry e;
    const uint32_t rc = readEntry(chip, f.table, index, e);
    *value = rc == 0 ? vq::getField(e.w, f) : 0;
    return rc;
}

uint32_t reportSteps(uint32_t chip, const char *operation, uint32_t rc) {
    if (rc != 0) {
        VQ6192_PPP_ERR(chip, "Err. %s Return:[0x%x]\n", operation, rc);
    }
    return rc;
}

void sleepUs(uint32_t us) {
    vq::DrvDelayUs(us);
}

namespace {
constexpr uint32_t kDrainAttempts = 500;
constexpr uint32_t kDrainWaitUs = 30000;
}  // namespace

uint32_t drainBundle(uint32_t chip, uint32_t bundle) {
    for (uint32_t attempt = 0; attempt < kDrainAttempts; ++attempt) {
        sleepUs(kDrainWaitUs);
        uint32_t blocks = 0;
        for (uint32_t q = 0; q < VQ6192_MAX_MC_QUE_NUM; ++q) {
            uint32_t cnt = 0;
            getField(chip, VQ6192_MAX_MC_QUE_NUM * bundle + q, kMcqstCnt, &cnt);
            blocks += cnt;
        }
        if (blocks == 0) {
            return 0;
        }
    }
    return status(chip, kErrTimeout);
}

}  // namespace vq::ppp
