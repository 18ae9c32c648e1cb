#pragma once

// The fixture of the tests that run file operations over real folders, with a user who answers.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "fileops/file_operation.h"
#include "tests/fileops/tree_contents.h"
#include "tests/support/test_world.h"

class OperationTest : public testing::Test {
  protected:
    explicit OperationTest(UiLanguage language = UiLanguage::English);

    // What to do, with paths in the tree.
    void Prepare(FileOperationKind kind, const std::vector<std::string>& sources,
                 const std::string& destination);
    // Runs it; each box gets the next of the answers, the last serves for all that follow. Returns the boxes,
    // joined by "; " (MetBox). Whatever happens, the result is 1, the dialog is gone and its owner takes
    // input again.
    std::string Run(std::vector<int> answers = {IDOK}, std::function<void(HWND)> atBox = {});
    // The text of a control of the dialog, while it is up.
    [[nodiscard]] std::wstring Shown(int id) const;
    [[nodiscard]] std::string Contents() const { return ContentsOf(tree_); }

    TestWorld world_;
    HostWindow host_;
    TempTree tree_;
    FileOperation operation_;
};
