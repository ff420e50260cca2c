/* VQ6192 driver SDK: ATM connections, traffic, OAM cells, pseudowires, statistics and capture. C-compatible.
 */
#ifndef VQ6192_ATM_H
#define VQ6192_ATM_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_ATM_H */
