/* VQ6192 driver SDK: chip health, self-tests and interrupt control. C-compatible. */
#ifndef VQ6192_CHIP_H
#define VQ6192_CHIP_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_CHIP_H */
