/* VQ6192 driver SDK: Ethernet side: packet-network headers and label maps, SerDes, Ethernet and MAC ports. */
#ifndef VQ6192_ETH_H
#define VQ6192_ETH_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_ETH_H */
