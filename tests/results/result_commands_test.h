#pragma once

// A result list over real files with its commands, and the shell's launcher and shortcuts replaced by
// stand-ins that keep what they were asked.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "results/result_commands.h"
#include "tests/results/list_cells.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"
#include "tests/support/test_world.h"

struct StartedFile {
    SHELLEXECUTEINFOW info;
    std::wstring file;
    std::wstring arguments;
};

struct MadeShortcut {
    std::wstring shortcut;
    std::wstring target;
};

// What the stand-ins were asked, and what they answer.
struct ShellRecord {
    std::vector<StartedFile> started;
    std::vector<MadeShortcut> made;
    std::vector<int> targetCapacities;
    std::wstring target;  // of every shortcut; empty for one that cannot be read
};

class ResultCommandsTest : public testing::Test {
  protected:
    ResultCommandsTest();
    ~ResultCommandsTest() override;

    static void UseJapanese() { ContextForStartUp().uiLanguage = UiLanguage::Japanese; }

    // The list is made at the first use, so that a test may choose the language before.
    ResultList& List();
    ResultCommands& Commands();
    [[nodiscard]] HWND OwnerHandle() const { return host_.Handle(); }

    // A row for what stands at the path in the tree.
    void AddRow(const std::wstring& relative);
    // Makes the file and its row.
    void AddFileRow(const std::wstring& relative, std::string_view bytes = "text");
    // The names of the rows, in order.
    [[nodiscard]] std::vector<std::wstring> RowNames();
    [[nodiscard]] bool Stands(const std::wstring& relative) const;

    static ShellRecord& Shell();

    TestWorld world_;
    HostWindow host_;
    TempTree tree_;

  private:
    std::unique_ptr<ResultList> list_;
    std::unique_ptr<ResultCommands> commands_;
    ce::ShortcutCalls shortcutsBefore_;
    Replaced<decltype(ce::ShellCalls::getFileInfo)> kinds_;
};
