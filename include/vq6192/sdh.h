/* VQ6192 driver SDK: SDH/SONET mapping and tributary numbering. C-compatible. */
#ifndef VQ6192_SDH_H
#define VQ6192_SDH_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_SDH_H */
