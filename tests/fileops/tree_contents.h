#pragma once

// Files and folders of a test written as one line: "s/a=new s/empty/" is the file a with the text new and an
// empty folder. Names and texts have no blanks.

#include <string>

#include "tests/support/temp_tree.h"

void AddContents(TempTree& tree, const std::string& contents);

// What stands below the root now, each file and each empty folder, in the order of their names.
[[nodiscard]] std::string ContentsOf(const TempTree& tree);

// The same entries in that order, as an expectation may be written in any.
[[nodiscard]] std::string InOrder(const std::string& contents);

// Whether the contents, as above, have this entry.
[[nodiscard]] bool Has(const std::string& contents, const std::string& entry);

// The path in the tree of what is written with "/".
[[nodiscard]] std::wstring PathIn(const TempTree& tree, const std::string& written);

// When the file was last written.
void SetLastWriteTime(const std::wstring& path, const SYSTEMTIME& moment);
