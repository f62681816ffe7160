#pragma once

#define ZK_PLUGIN_EXPORT __attribute__((visibility("default")))
