/* VQ6192 driver SDK: the chip table catalogue and table access. C-compatible.
 *
 * Most configuration and statistics live in the chip's internal tables, reached through ten indirect
 * register blocks. An entry is an array of u32 words: entry bit n is bit (n mod 32) of word n / 32. */
#ifndef VQ6192_TABLE_H
#define VQ6192_TABLE_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

#define VQ6192_CHIP_TABLE_NUM 217u  /* ids 0..216 have an access record */
#define VQ6192_TBL_ENTRY_NUM 334u   /* ids 217..333 are print layouts only */
#define VQ6192_TBL_MAX_WORDS 16u    /* words of the largest entry (32 data registers) */
#define VQ6192_TBL_NO_VALUE 0xFFFFu /* descriptor value: nothing is written */

/* Access kinds (informational). */
#define VQ6192_TBL_KIND_CLOCK_RECOVERY 0u
#define VQ6192_TBL_KIND_STATUS 1u
#define VQ6192_TBL_KIND_WRITE_FIFO 2u
#define VQ6192_TBL_KIND_CONFIG 6u

/* One register field of a table's access block: register number (doubled to form the register
 * address), start bit, width, and up to two values to write (VQ6192_TBL_NO_VALUE: none). */
typedef struct {
    uint32_t ulRegNo;
    uint16_t usStartBit;
    uint16_t usWidth;
    uint16_t usValue1;
    uint16_t usValue2;
} VQ6192_TBL_FIELD_S;

/* Access record of a chip table. */
typedef struct {
    uint32_t ulBlockBase;     /* register number of the access block (informational) */
    uint32_t ulDepth;         /* entries; valid indexes 0..depth-1 */
    uint16_t usData16;        /* 16-bit data registers moved per entry */
    uint16_t usWidth;         /* entry width in bits (informational) */
    uint32_t ulCounterLayout; /* informational */
    uint32_t ulAccessKind;    /* VQ6192_TBL_KIND_* (informational) */
    uint32_t ulPresent;       /* 1: the table exists */
    VQ6192_TBL_FIELD_S stWriteCmd;
    VQ6192_TBL_FIELD_S stReadCmd;
    VQ6192_TBL_FIELD_S stBusy;
    VQ6192_TBL_FIELD_S stSelect;    /* value1: the table's select code */
    VQ6192_TBL_FIELD_S stAddress;   /* value1 VQ6192_TBL_NO_VALUE: write the entry index */
    VQ6192_TBL_FIELD_S stWriteData; /* data register k at register number + k */
    VQ6192_TBL_FIELD_S stReadData;
} VQ6192_CHIP_TABLE_INFO_S;

/* A field of an entry in the print catalogue, counted in entry bits. */
typedef struct {
    const char *pszName;
    uint16_t usStartBit;
    uint16_t usWidth;
    const char *pszDesc;
} VQ6192_TBL_MEMBER_S;

typedef struct {
    const char *pszName;
    const VQ6192_TBL_MEMBER_S *pstMember;
    uint16_t usMemberNum;
    uint16_t usMemberNum2;
    const char *pszDesc;
} VQ6192_TBL_ENTRY_S;

VQ6192_API extern const VQ6192_CHIP_TABLE_INFO_S g_VQ6192_CHIP_TABLE_INFO[VQ6192_CHIP_TABLE_NUM];
VQ6192_API extern const VQ6192_TBL_ENTRY_S g_astVQ6192TblEntryList[VQ6192_TBL_ENTRY_NUM];
VQ6192_API extern const uint32_t g_VQ192_MAX_Tbl;

/* Table access. Status errors are in module TABLE (12): 1 index past the depth, 2 null entry buffer,
 * 3 busy time-out, 8 lock failure. */
VQ6192_API uint32_t VQ6192_Write_Table(uint32_t chip, uint32_t tableId, uint32_t index,
                                       const uint32_t *entry);
VQ6192_API uint32_t VQ6192_Read_Table(uint32_t chip, uint32_t tableId, uint32_t index, uint32_t *entry);
VQ6192_API uint32_t VQ6192_Read_Table_Pro(uint32_t chip, uint32_t tableId, uint32_t index, uint32_t *entry);
VQ6192_API uint32_t VQ6192_GetTabelDataSizeById(uint32_t tableId);

/* Entry printing into a diagnostic buffer. */
VQ6192_API uint32_t VQ6192_Rt(uint32_t chip, uint32_t tableId, uint32_t index, char *buf);
VQ6192_API uint32_t VQ6192_Wt_Test(uint32_t chip, uint32_t index);
VQ6192_API uint32_t VQ6192_TBL_EntryPrintf(uint32_t tableId, const uint32_t *entry, char *buf);
VQ6192_API uint32_t VQ6192_TBL_MemberPrintf(const VQ6192_TBL_MEMBER_S *members, uint32_t count,
                                            const uint32_t *entry, uint32_t depth, char *out,
                                            uint32_t *column);
VQ6192_API uint32_t VQ6192_TBL_Sprintf(uint32_t value, const char *name, uint32_t startBit, uint32_t width,
                                       const char *tail, char *out, uint32_t *column);

VQ6192_EXTERN_C_END

#endif /* VQ6192_TABLE_H */
