#pragma once

/// Marks what the command library shows to its hosts; everything else in it is hidden.
#define ZEL_CMD_API __attribute__((visibility("default")))
