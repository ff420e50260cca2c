/* VQ6192 driver SDK: basic types, module ids, status codes and print levels. C-compatible. */
#ifndef VQ6192_TYPES_H
#define VQ6192_TYPES_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define VQ6192_API
#else
#define VQ6192_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#define VQ6192_EXTERN_C_BEGIN extern "C" {
#define VQ6192_EXTERN_C_END }
#else
#define VQ6192_EXTERN_C_BEGIN
#define VQ6192_EXTERN_C_END
#endif

/* Chip ids are 0..VQ6192_CHIP_NUM-1; the registry has one spare record beyond them. */
#define VQ6192_CHIP_NUM 264u
#define VQ6192_CHIP_RECORD_NUM 265u

/* Size of every diagnostic text buffer a caller hands to a diagnostic command. */
#define VQ6192_DIAG_BUF_SIZE 48128u

/* Module ids: index into g_pszModule and into a chip's print flags. */
typedef enum {
    VQ6192_MODULE_OFF = 0,
    VQ6192_MODULE_BASE = 1,
    VQ6192_MODULE_ATM = 2,
    VQ6192_MODULE_CES = 3,
    VQ6192_MODULE_PPP = 4,
    VQ6192_MODULE_ETH = 5,
    VQ6192_MODULE_MAC = 6,
    VQ6192_MODULE_TS = 7,
    VQ6192_MODULE_SDH = 8,
    VQ6192_MODULE_SAM = 9,
    VQ6192_MODULE_INT = 10,
    VQ6192_MODULE_DUMP = 11,
    VQ6192_MODULE_TABLE = 12,
    VQ6192_MODULE_REG = 13,
    VQ6192_MODULE_IMA = 14,
    VQ6192_MODULE_FRM = 15,
    VQ6192_MODULE_QOS_ASI = 16,
    VQ6192_MODULE_MLPPP_ASI = 17,
    VQ6192_MODULE_CPOS_ASI = 18,
    VQ6192_MODULE_CES_ASI = 19,
    VQ6192_MODULE_ATM_ASI = 20,
    VQ6192_MODULE_IMA_ASI = 21,
    VQ6192_MODULE_END = 22
} VQ6192_MODULE_ID_E;

#define VQ6192_MODULE_NUM 23u

/* The module field of a status code equals the module id for BASE..TABLE; IMA and the
 * framer/timeslot operations use their own numbers. */
#define VQ6192_ERR_MODULE_IMA 13u
#define VQ6192_ERR_MODULE_FRAMER 14u

/* Common error numbers (bits 0..15 of a status code). */
#define VQ6192_ERR_PARA 1u
#define VQ6192_ERR_NULL 2u
#define VQ6192_ERR_TIMEOUT 3u
#define VQ6192_ERR_ARBITRATE 7u
#define VQ6192_ERR_LOCK 8u

/* A status code: ((chip << 24) & 0x0F000000) + (module << 16) + error. */
#define VQ6192_STATUS(chip, module, err) \
    ((((uint32_t)(chip) << 24) & 0x0F000000u) + ((uint32_t)(module) << 16) + (uint32_t)(err))
#define VQ6192_STATUS_CHIP(status) (((uint32_t)(status) >> 24) & 0xFu)
#define VQ6192_STATUS_MODULE(status) (((uint32_t)(status) >> 16) & 0xFFu)
#define VQ6192_STATUS_ERROR(status) ((uint32_t)(status)&0xFFFFu)

/* Print levels: bits of a module's print flag. */
#define VQ6192_PRINT_OFF 0u
#define VQ6192_PRINT_NORMAL 1u
#define VQ6192_PRINT_PARA_WRONG 2u
#define VQ6192_PRINT_EXCEPTION1_INFO 4u
#define VQ6192_PRINT_EXCEPTION2_INFO 8u
#define VQ6192_PRINT_ALL 15u

/* Service directions. */
typedef enum {
    VQ6192_BASE_SRV_DIRECT_INGRESS = 0,
    VQ6192_BASE_SRV_DIRECT_EGRESS = 1,
    VQ6192_BASE_SRV_DIRECT_BOTH = 2,
    VQ6192_BASE_SRV_DIRECT_MAX = 3
} VQ6192_SRV_DIRECT_E;

#endif /* VQ6192_TYPES_H */
