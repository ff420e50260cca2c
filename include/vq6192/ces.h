/* VQ6192 driver SDK: circuit emulation: CES channels and services, clock recovery. C-compatible. */
#ifndef VQ6192_CES_H
#define VQ6192_CES_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_CES_H */
