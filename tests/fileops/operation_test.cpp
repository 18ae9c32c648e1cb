#include "tests/fileops/operation_test.h"

#include "tests/fileops/operation_user.h"

OperationTest::OperationTest(UiLanguage language) : world_(language), operation_(&host_.Object()) {}

void OperationTest::Prepare(FileOperationKind kind, const std::vector<std::string>& sources,
                            const std::string& destination) {
    operation_.operation = kind;
    operation_.ClearSources();
    for (const std::string& source : sources)
        ASSERT_TRUE(operation_.AddSource(PathIn(tree_, source).c_str()));
    ASSERT_TRUE(operation_.SetDestination(PathIn(tree_, destination).c_str()));
}

std::string OperationTest::Run(std::vector<int> answers, std::function<void(HWND)> atBox) {
    OperationUser user(operation_, std::move(answers));
    user.atBox = std::move(atBox);
    EXPECT_EQ(operation_.RunModal(), 1);
    EXPECT_EQ(operation_.Handle(), nullptr);
    EXPECT_FALSE(operation_.IsRunning());
    EXPECT_TRUE(IsWindowEnabled(host_.Handle()));
    std::string boxes;
    for (const MetBox& box : user.Met()) {
        EXPECT_TRUE(box.ownerIsRight) << box.what;
        boxes += (boxes.empty() ? "" : "; ") + box.what;
    }
    return boxes;
}

std::wstring OperationTest::Shown(int id) const {
    wchar_t text[MAX_PATH + 1] = L"";
    GetDlgItemTextW(operation_.Handle(), id, text, MAX_PATH + 1);
    return text;
}
