/* VQ6192 driver SDK: PPP and multilink PPP. C-compatible. */
#ifndef VQ6192_PPP_H
#define VQ6192_PPP_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

#define VQ6192_NONE_SCH_PPP_MAX 512u /* PPP channels 0..511 */
#define VQ6192_SCH_C4_PPP_MAX 4u     /* VC-4 PPP channels 0..3 */

/* PPP channel numbering. While VC-4 PPP channel n is enabled, PPP channel n denotes it and the chip's
 * PPP tables hold it at inner number n * 512; every other channel is held at its own number. */
VQ6192_API uint32_t VQ6192_PPP_CalcPppChnl(uint32_t chip, uint32_t ulPppChanNo, uint32_t direction);
VQ6192_API uint32_t VQ6192_PPP_ReCalcPppChnl(uint32_t chip, uint32_t inner, uint32_t direction);

VQ6192_EXTERN_C_END

#endif /* VQ6192_PPP_H */
