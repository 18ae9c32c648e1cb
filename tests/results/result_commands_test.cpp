#include "tests/results/result_commands_test.h"

#include "framework/property_set.h"

namespace {

ShellRecord record;

BOOL Target(const wchar_t*, wchar_t* target, int capacity) {
    record.targetCapacities.push_back(capacity);
    target[0] = L'\0';
    if (record.target.empty() || record.target.size() >= static_cast<std::size_t>(capacity)) return FALSE;
    lstrcpyW(target, record.target.c_str());
    return TRUE;
}

BOOL Make(const wchar_t* shortcut, const wchar_t* target) {
    record.made.push_back({shortcut, target});
    return TRUE;
}

BOOL Start(SHELLEXECUTEINFOW* info) {
    record.started.push_back(
        {*info, info->lpFile, info->lpParameters != nullptr ? info->lpParameters : L"(none)"});
    return TRUE;
}

// Every file is a "Kind" and is shown as "Notes".
DWORD_PTR AnswerAboutFile(const wchar_t*, DWORD, SHFILEINFOW* info, UINT, UINT) {
    lstrcpyW(info->szTypeName, L"Kind");
    lstrcpyW(info->szDisplayName, L"Notes");
    return 1;
}

}  // namespace

ResultCommandsTest::ResultCommandsTest()
    : shortcutsBefore_(ce::shortcutCalls), kinds_(ce::shellCalls.getFileInfo, &AnswerAboutFile) {
    record = {};
    ce::shortcutCalls = {Target, Make, Start};
}

ResultCommandsTest::~ResultCommandsTest() {
    ce::shortcutCalls = shortcutsBefore_;
}

ShellRecord& ResultCommandsTest::Shell() {
    return record;
}

ResultList& ResultCommandsTest::List() {
    if (list_ == nullptr) {
        PropertySet properties;
        properties.Set(property::Width, 220);
        properties.Set(property::Height, 150);
        list_ = std::make_unique<ResultList>(&host_.Object(), properties);
    }
    return *list_;
}

ResultCommands& ResultCommandsTest::Commands() {
    if (commands_ == nullptr) commands_ = std::make_unique<ResultCommands>(host_.Object(), List());
    return *commands_;
}

void ResultCommandsTest::AddRow(const std::wstring& relative) {
    const std::wstring path = tree_.Path(relative);
    WIN32_FIND_DATAW entry = FileEntry(path.substr(path.rfind(L'\\') + 1));
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES) entry.dwFileAttributes = attributes;
    List().AddMatch(path.c_str(), entry);
}

void ResultCommandsTest::AddFileRow(const std::wstring& relative, std::string_view bytes) {
    tree_.AddFile(relative, bytes);
    AddRow(relative);
}

std::vector<std::wstring> ResultCommandsTest::RowNames() {
    std::vector<std::wstring> names;
    for (int row = 0; row < List().RowCount(); ++row)
        names.push_back(CellOf(List().Handle(), row, ResultColumn::Name));
    return names;
}

bool ResultCommandsTest::Stands(const std::wstring& relative) const {
    return GetFileAttributesW(tree_.Path(relative).c_str()) != INVALID_FILE_ATTRIBUTES;
}
