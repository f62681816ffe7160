#pragma once

// Job methods are part of the plugin's exported interface: the host calls them
// on the records it reads back.
#define ZK_JOBS_EXPORT __attribute__((visibility("default")))
