#pragma once

// What stands on the device of the whole-program tests.

#include "tests/program/device_tree.h"

void FillSampleDevice(const DeviceTree& tree);
