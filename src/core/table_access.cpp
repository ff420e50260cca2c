// Table access: one entry moved through the table's indirect-access block under the chip lock. The
// sequence is: lock, wait until the block is idle, select the table, write the entry address, move the
// data, issue the command, wait for completion, put the command back to idle, unlock.
#include "core/chip_lock.h"
#include "core/status.h"
#include "platform/osal.h"
#include "vq6192/table.h"

namespace vq {
namespace {

constexpr uint32_t kBusyPolls = 500;

enum class Op { Write, Read, QuietRead };

uint32_t tableStatus(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_MODULE_TABLE, err);
}

int asInt(uint32_t v) {
    return static_cast<int>(v);
}

uint32_t regAddr(const VQ6192_TBL_FIELD_S &f, uint32_t k = 0) {
    return (f.ulRegNo + k) * 2;
}

void writeField(uint32_t chip, const VQ6192_TBL_FIELD_S &f, uint32_t value, uint32_t k = 0) {
    VQ6192_WriteRegFieldB(chip, regAddr(f, k), value, f.usStartBit, f.usWidth);
}

// Writes value1 and then value2 of a command field, each unless it is "no value".
void writeCommand(uint32_t chip, const VQ6192_TBL_FIELD_S &f) {
    if (f.usValue1 != VQ6192_TBL_NO_VALUE) {
        writeField(chip, f, f.usValue1);
    }
    if (f.usValue2 != VQ6192_TBL_NO_VALUE) {
        writeField(chip, f, f.usValue2);
    }
}

// One table access in progress: its identity, the texts its failures log, and the lock it holds.
class TableAccess {
  public:
    TableAccess(uint32_t chip, uint32_t tableId, uint32_t index, Op op)
        : chip_(chip), table_(tableId), index_(index), op_(op), rec_(g_vq6192[chip]) {}

    const char *verb() const { return op_ == Op::Write ? "write" : "read"; }
    const char *function() const { return op_ == Op::Write ? "VQ6192_Write_Table" : "VQ6192_Read_Table"; }
    bool quiet() const { return op_ == Op::QuietRead; }

    // Lock failures give (chip bits) + 0x0C0008.
    uint32_t lock() {
        const uint32_t timeout = quiet() ? kQuietSemTimeout : kSemTimeout;
        if (rec_.pSem != nullptr && iof_sema_timewait(rec_.pSem, timeout) != 0) {
            rec_.aulRegFailInfo[VQ6192_FAIL_SEM_TAKE]++;
            log("chip %d pwe3 %s table get sem fail,table 0x%x,index 0x%x");
            return tableStatus(chip_, VQ6192_ERR_LOCK);
        }
        if (rec_.pfnGetArbitrate != nullptr && rec_.pfnGetArbitrate(chip_) != 0) {
            rec_.aulRegFailInfo[VQ6192_FAIL_ARBITRATE]++;
            log("chip %d pwe3 %s table get attrb fail,table 0x%x,index 0x%x");
            giveSemaphore("");
            return tableStatus(chip_, VQ6192_ERR_LOCK);
        }
        return 0;
    }

    // Releases hook and semaphore; a failing give is counted, logged with the step's tag ("", "1",
    // "2", "3") and reported as the lock failure.
    uint32_t unlock(const char *tag) {
        if (rec_.pfnGiveArbitrate != nullptr) {
            rec_.pfnGiveArbitrate(chip_);
        }
        return giveSemaphore(tag) ? 0 : tableStatus(chip_, VQ6192_ERR_LOCK);
    }

    // Polls the busy field up to 500 times. Returns true when the block went idle; otherwise *status
    // holds the operation's result: 0 when the card was found absent (lock released), the time-out
    // or the lock failure of the release.
    bool waitIdle(const VQ6192_TBL_FIELD_S &busy, bool afterCommand, uint32_t *status) {
        for (uint32_t poll = 0; poll < kBusyPolls; ++poll) {
            const uint32_t value = VQ6192_ReadRegFieldB(chip_, regAddr(busy), busy.usStartBit, busy.usWidth);
            if (value == 0) {
                if (!afterCommand && op_ != Op::Write) {
                    trace(VQ6192_PRINT_NORMAL,
                          "Info. VQ6192_Read_Table.VQ6192_ReadRegField(%u,%#x,%u,%u), Val[%#x] Step1 \r\n",
                          chip_, regAddr(busy), busy.usStartBit, busy.usWidth, value);
                }
                return true;
            }
            if (rec_.pfnCardPresent != nullptr && rec_.pfnCardPresent(chip_) == 0) {
                if (rec_.pfnGiveArbitrate != nullptr) {
                    rec_.pfnGiveArbitrate(chip_);
                }
                if (rec_.pSem != nullptr) {
                    iof_sema_post(rec_.pSem);
                }
                // The read's completion wait leaves without a log line.
                if (op_ == Op::Write || !afterCommand) {
                    logCardOut();
                }
                *status = 0;
                return false;
            }
        }
        if (op_ == Op::Write && afterCommand) {
            trace(VQ6192_PRINT_EXCEPTION1_INFO,
                  "Err. VQ6192_Write_Table(%u,%u,%u)      Step7 ErrCode[TimeOut]\r\n", chip_, table_, index_);
        } else if (op_ == Op::Write) {
            trace(VQ6192_PRINT_EXCEPTION1_INFO,
                  "Err. VQ6192_Write_Table(%u,%u,%u)       ErrCode[TimeOut]\r\n", chip_, table_, index_);
        } else {
            trace(VQ6192_PRINT_EXCEPTION1_INFO, "Err. VQ6192_Read_Table(%u,%u,%u)       ErrCode[TimeOut]\r\n",
                  chip_, table_, index_);
        }
        if (unlock(afterCommand ? "2" : "1") != 0) {
            *status = tableStatus(chip_, VQ6192_ERR_LOCK);
            return false;
        }
        rec_.aulRegFailInfo[VQ6192_FAIL_TABLE_TIMEOUT]++;
        log(afterCommand ? "chip %d pwe3 %s table timeout1,table 0x%x,index 0x%x"
                         : "chip %d pwe3 %s table timeout,table 0x%x,index 0x%x");
        *status = tableStatus(chip_, VQ6192_ERR_TIMEOUT);
        return false;
    }

    void selectEntry(const VQ6192_CHIP_TABLE_INFO_S &info) {
        const VQ6192_TBL_FIELD_S &sel = info.stSelect;
        const VQ6192_TBL_FIELD_S &adr = info.stAddress;
        if (sel.usValue1 != VQ6192_TBL_NO_VALUE) {
            trace(VQ6192_PRINT_NORMAL, "Info. %s.VQ6192_WriteRegField(%u,%#x,%u,%u,%u) Step2 \r\n",
                  function(), chip_, regAddr(sel), static_cast<uint32_t>(sel.usValue1), sel.usStartBit,
                  sel.usWidth);
            writeField(chip_, sel, sel.usValue1);
        }
        if (adr.usValue1 != VQ6192_TBL_NO_VALUE) {
            trace(VQ6192_PRINT_NORMAL, "Info. %s.VQ6192_WriteRegField(%u,%#x,%u,%u,%u) Step3.1 \r\n",
                  function(), chip_, regAddr(adr), static_cast<uint32_t>(adr.usValue1), adr.usStartBit,
                  adr.usWidth);
            writeField(chip_, adr, adr.usValue1);
        } else {
            trace(VQ6192_PRINT_NORMAL, "Info. %s.VQ6192_WriteRegField(%u,%#x,%u,%u,%u) Step3.2 \r\n",
                  function(), chip_, regAddr(adr), index_ & 0xFFFFu, adr.usStartBit, adr.usWidth);
            writeField(chip_, adr, index_ & 0xFFFFu);
        }
    }

    // The whole sequence around the data steps: `before` moves data ahead of the command (a write),
    // `after` once the command completed (a read).
    template <typename Before, typename After>
    uint32_t run(const VQ6192_CHIP_TABLE_INFO_S &info, const VQ6192_TBL_FIELD_S &command, Before before,
                 After after) {
        uint32_t status = lock();
        if (status != 0) {
            return status;
        }
        if (!waitIdle(info.stBusy, false, &status)) {
            return status;
        }
        selectEntry(info);
        before();
        writeCommand(chip_, command);
        if (!waitIdle(info.stBusy, true, &status)) {
            return status;
        }
        after();
        if (command.usValue1 != VQ6192_TBL_NO_VALUE) {
            writeField(chip_, command, command.usValue1);  // command back to idle
        }
        return unlock("3");
    }

  private:
    bool giveSemaphore(const char *tag) {
        if (rec_.pSem != nullptr && iof_sema_post(rec_.pSem) != 0) {
            rec_.aulRegFailInfo[VQ6192_FAIL_SEM_GIVE]++;
            if (!quiet()) {
                PIC_DbgLog(2, "chip %d pwe3 %s table give sem%s fail,table 0x%x,index 0x%x", asInt(chip_),
                           verb(), tag, table_, index_);
            }
            return false;
        }
        return true;
    }

    void log(const char *format) {
        if (!quiet()) {
            PIC_DbgLog(2, format, asInt(chip_), verb(), table_, index_);
        }
    }

    void logCardOut() {
        if (!quiet()) {
            PIC_DbgLog(2, "chip %d pwe3 card out", asInt(chip_));
        }
    }

    template <typename... Args>
    void trace(uint32_t level, const char *format, Args... args) {
        if (!quiet()) {
            VQ6192_Printf(chip_, VQ6192_MODULE_TABLE, level, format, args...);
        }
    }

    uint32_t chip_, table_, index_;
    Op op_;
    VQ6192_CHIP_RECORD &rec_;
};

// Ids the catalogue and the registry do not have are refused before anything is touched, rather than
// read past the tables.
bool idsValid(uint32_t chip, uint32_t tableId) {
    return validChip(chip) && tableId < VQ6192_CHIP_TABLE_NUM;
}

uint32_t readTable(uint32_t chip, uint32_t tableId, uint32_t index, uint32_t *entry, Op op) {
    if (entry == nullptr) {
        return tableStatus(chip, VQ6192_ERR_NULL);
    }
    if (!idsValid(chip, tableId)) {
        return op == Op::QuietRead ? tableStatus(chip, VQ6192_ERR_PARA) : paraErr(chip, VQ6192_MODULE_TABLE);
    }
    const VQ6192_CHIP_TABLE_INFO_S &info = g_VQ6192_CHIP_TABLE_INFO[tableId];
    if (index >= info.ulDepth) {
        // The quiet read reports an index past the table as error 2.
        return tableStatus(chip, op == Op::QuietRead ? VQ6192_ERR_NULL : VQ6192_ERR_PARA);
    }
    if (info.ulPresent != 1) {
        return 0;
    }
    const VQ6192_TBL_FIELD_S &data = info.stReadData;
    TableAccess access(chip, tableId, index, op);
    return access.run(
        info, info.stReadCmd, [] {},
        [&] {
            for (uint32_t k = 0; k < info.usData16; ++k) {
                const uint32_t half =
                    VQ6192_ReadRegFieldB(chip, regAddr(data, k), data.usStartBit, data.usWidth) & 0xFFFFu;
                uint32_t &word = entry[k / 2];
                word = (k % 2 == 0) ? (word & 0xFFFF0000u) | half : (word & 0x0000FFFFu) | (half << 16);
            }
        });
}

}  // namespace
}  // namespace vq

extern "C" {

// The write does not check the index against the depth: the address field keeps as many low bits as
// it has (index 0x12345 reaches entry 0x2345 of a 16-bit address field).
VQ6192_API uint32_t VQ6192_Write_Table(uint32_t chip, uint32_t tableId, uint32_t index,
                                       const uint32_t *entry) {
    using namespace vq;
    if (entry == nullptr) {
        const uint32_t status = tableStatus(chip, VQ6192_ERR_NULL);
        VQ6192_Printf(chip, VQ6192_MODULE_TABLE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Write_Table(%u,%u,%u)       ErrCode[%#x]\r\n", chip, tableId, index,
                      status);
        return status;
    }
    if (!idsValid(chip, tableId)) {
        return paraErr(chip, VQ6192_MODULE_TABLE);
    }
    const VQ6192_CHIP_TABLE_INFO_S &info = g_VQ6192_CHIP_TABLE_INFO[tableId];
    if (info.ulPresent != 1) {
        return 0;
    }
    const VQ6192_TBL_FIELD_S &data = info.stWriteData;
    TableAccess access(chip, tableId, index, Op::Write);
    return access.run(
        info, info.stWriteCmd,
        [&] {
            for (uint32_t k = 0; k < info.usData16; ++k) {
                const uint32_t word = entry[k / 2];
                writeField(chip, data, (k % 2 == 0) ? (word & 0xFFFFu) : (word >> 16), k);
            }
        },
        [] {});
}

VQ6192_API uint32_t VQ6192_Read_Table(uint32_t chip, uint32_t tableId, uint32_t index, uint32_t *entry) {
    return vq::readTable(chip, tableId, index, entry, vq::Op::Read);
}

VQ6192_API uint32_t VQ6192_Read_Table_Pro(uint32_t chip, uint32_t tableId, uint32_t index, uint32_t *entry) {
    return vq::readTable(chip, tableId, index, entry, vq::Op::QuietRead);
}

VQ6192_API uint32_t VQ6192_GetTabelDataSizeById(uint32_t tableId) {
    return tableId < VQ6192_CHIP_TABLE_NUM ? g_VQ6192_CHIP_TABLE_INFO[tableId].usData16 : 0;
}

}  // extern "C"
