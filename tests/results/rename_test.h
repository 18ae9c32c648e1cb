#pragma once

// One file "a.txt" with its row, to be renamed, and what stands in its folder afterwards.

#include <algorithm>
#include <cstdio>

#include "tests/results/result_commands_test.h"

using Names = std::vector<std::wstring>;

class RenameTest : public ResultCommandsTest {
  protected:
    RenameTest() { AddFileRow(L"a.txt", "of a"); }

    // What was shown is the reason and that the rename failed, and the row has not changed.
    void ExpectRefusal(const AnsweredBoxes& boxes, const wchar_t* reason) {
        ASSERT_EQ(boxes.Seen().size(), 2u);
        for (const SeenBox& box : boxes.Seen()) {
            EXPECT_EQ(box.caption, L"Error");
            EXPECT_EQ(box.owner, OwnerHandle());
        }
        EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], reason))
            << testing::PrintToString(boxes.Seen()[0].texts);
        EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Can't rename the file"));
        EXPECT_EQ(RowNames()[0], L"a.txt");
    }
    [[nodiscard]] std::string ContentOf(const std::wstring& relative) const {
        std::FILE* file = _wfopen(tree_.Path(relative).c_str(), L"rb");
        if (file == nullptr) return "(missing)";
        char bytes[16] = {};
        const std::size_t size = std::fread(bytes, 1, sizeof bytes, file);
        std::fclose(file);
        return std::string(bytes, size);
    }
    // The names of everything in the tree's root, in alphabetical order.
    [[nodiscard]] Names Files() const {
        Names names;
        WIN32_FIND_DATAW data;
        const HANDLE search = ce::FindFirstFileW(tree_.Path(L"*.*").c_str(), &data);
        if (search == INVALID_HANDLE_VALUE) return names;
        do
            names.emplace_back(data.cFileName);
        while (ce::FindNextFileW(search, &data));
        ce::FindClose(search);
        std::sort(names.begin(), names.end());
        return names;
    }
};
