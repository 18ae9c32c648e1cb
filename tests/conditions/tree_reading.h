#pragma once

// Reads a tree view back.

#include <string>
#include <utility>
#include <vector>

#include "platform/windows_ce.h"

[[nodiscard]] std::wstring TextOfItem(HWND tree, HTREEITEM item);
// The texts of the item's children, from the first.
[[nodiscard]] std::vector<std::wstring> ChildrenOf(HWND tree, HTREEITEM item);
// The item reached by these names from the root down; the root for none, null where one is missing.
[[nodiscard]] HTREEITEM ItemAt(HWND tree, const std::vector<std::wstring>& names);
// The image and the image when selected.
[[nodiscard]] std::pair<int, int> ImagesOf(HWND tree, HTREEITEM item);
