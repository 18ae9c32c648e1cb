#include "tests/program/program_test.h"

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/program/sample_device.h"

std::wstring ProgramPath() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder = path;
    for (int level = 0; level < 2; ++level)
        folder.resize(folder.find_last_of(L'\\'));
    return folder + L"\\quorinsearch.exe";
}

void ProgramTest::SetUpTestSuite() {
    tree = new DeviceTree(L"QuorinDevice");
    FillSampleDevice(*tree);
    drive = new DeviceDrive(tree->Root());
    program = new ProgramDriver;
}

void ProgramTest::TearDownTestSuite() {
    program->Kill();
    delete program;
    delete drive;
    delete tree;
    program = nullptr;
    drive = nullptr;
    tree = nullptr;
}

void ProgramTest::SetUp() {
    if (Program().IsRunning()) {
        ClearConditions();
    } else {
        StartFresh();
        ClearConditions();
    }
}

void ProgramTest::StartFresh(const std::wstring& arguments, const std::wstring& path) {
    Program().Kill();
    PrepareRegistry();
    StartAgain(arguments, path);
}

void ProgramTest::CloseProgram() {
    EXPECT_EQ(Program().Close(), 0u);
}

void ProgramTest::StartAgain(const std::wstring& arguments, const std::wstring& path) {
    Program().Kill();
    ASSERT_EQ(FindWindowW(L"QuorinSearch", nullptr), nullptr) << "another copy of the program is running";
    ProgramStart start;
    start.path = path;
    start.workingFolder = Drive().Root();
    start.arguments = arguments;
    Program().Start(start);
}

// By the controls' own messages, so that no command of the program is needed for it.
void ProgramTest::ClearConditions() {
    NameConditions empty;
    empty.name = L"";
    empty.contains = L"";
    empty.location = L"";
    empty.subFolders = false;
    Program().Fill(empty);
    Program().Click(DatePage, RADIO_ALL_FILES);
    Program().SelectEntry(SizePage, COMBO_FILE_TYPE, 0);
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, 0);
    Program().SetText(SizePage, EDIT_KILOBYTES, L"");
    if (!Program().MenuItem(COMMAND_CHECK_CASE).Checked()) Program().SendMenuCommand(COMMAND_CHECK_CASE);
    if (Program().CurrentPage() != NamePage) Program().ShowPage(NamePage);
}

Names ProgramTest::NamesFoundBy(const NameConditions& conditions) {
    Program().Fill(conditions);
    Program().Find();
    return Program().RowNames();
}

Names ProgramTest::PathsFoundBy(const NameConditions& conditions) {
    Program().Fill(conditions);
    Program().Find();
    return Program().RowPaths();
}

Names Sorted(Names names) {
    std::sort(names.begin(), names.end());
    return names;
}

NameConditions Where(const std::wstring& location, bool subFolders) {
    return Named(L"", location, subFolders);
}

NameConditions Named(const std::wstring& name, const std::wstring& location, bool subFolders) {
    NameConditions conditions;
    conditions.name = name;
    conditions.contains = L"";
    conditions.location = location;
    conditions.subFolders = subFolders;
    return conditions;
}

NameConditions Containing(const std::wstring& text, const std::wstring& location, bool subFolders) {
    NameConditions conditions = Where(location, subFolders);
    conditions.contains = text;
    return conditions;
}
