#pragma once

// Sorts the rows of a result list by one column, by what its cells show.

#include "framework/list_view.h"
#include "results/result_column.h"

// The column as a number: a negative one sorts by row number, the order of finding, whatever the direction.
// Equal rows keep their order. Each cell is read once.
void SortRows(const ListView& list, int column, bool ascending);
