#pragma once

// The tree of all folders in a tree view, and the way from an item back to its path.

#include "framework/tree_view.h"

constexpr int RootImage = 0;
constexpr int FolderImage = 1;
constexpr int OpenFolderImage = 2;

// Inserts the root item and, below it, every folder of the device, each level in the reverse of the order in
// which the system lists it. Returns the root item.
HTREEITEM FillFolderTree(TreeView tree, const wchar_t* rootName);

// Inserts every folder below this one under the item, as above. Messages are dispatched meanwhile; it stops
// in the middle if one of them ends the program or destroys the tree.
void FillFolderItem(TreeView tree, HTREEITEM item, const wchar_t* folder);

// The full path of the item: "\" for the root. False when it does not fit.
[[nodiscard]] bool PathOfItem(TreeView tree, HTREEITEM item, wchar_t (&path)[MAX_PATH]);
