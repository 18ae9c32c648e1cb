#include "tests/fileops/operation_test.h"

#include "tests/fileops/operation_user.h"

OperationTest::OperationTest(UiLanguage language) : world(language), operation(&host.Object()) {}

void OperationTest::Prepare(FileOperationKind kind, const std::vector<std::string>& sources,
                            const std::string& destination) {
    operation.operation = kind;
    operation.ClearSources();
    for (const std::string& source : sources)
        ASSERT_TRUE(operation.AddSource(PathIn(tree, source).c_str()));
    ASSERT_TRUE(operation.SetDestination(PathIn(tree, destination).c_str()));
}

std::string OperationTest::Run(std::vector<int> answers, std::function<void(HWND)> atBox) {
    OperationUser user(operation, std::move(answers));
    user.atBox = std::move(atBox);
    EXPECT_EQ(operation.RunModal(), 1);
    EXPECT_EQ(operation.Handle(), nullptr);
    EXPECT_FALSE(operation.IsRunning());
    EXPECT_TRUE(IsWindowEnabled(host.Handle()));
    std::string boxes;
    for (const MetBox& box : user.Met()) {
        EXPECT_TRUE(box.ownerIsRight) << box.what;
        boxes += (boxes.empty() ? "" : "; ") + box.what;
    }
    return boxes;
}

std::wstring OperationTest::Shown(int id) const {
    wchar_t text[MAX_PATH + 1] = L"";
    GetDlgItemTextW(operation.Handle(), id, text, MAX_PATH + 1);
    return text;
}
