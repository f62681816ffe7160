#pragma once

#if defined(ZK_SHARED_BUILD)
#    define ZK_SHARED_EXPORT __attribute__((visibility("default")))
#else
#    define ZK_SHARED_EXPORT
#endif
