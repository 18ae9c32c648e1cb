#pragma once

// The table of what came of refusals: a line for each on the standard output, with call, code, how often,
// step and outcome.

#include "tests/hands/refused_life.h"

void WriteOutcomes(const LifePlan& plan, const LifeReport& report);
void WriteHang(const LifePlan& plan);
