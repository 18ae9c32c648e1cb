// Each call that changes files, failing with each code: what the user is told.

#include "fileops/file_actions.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"
#include "tests/support/test_world.h"

namespace {

constexpr const wchar_t* First = L"\\from\\100%s.txt";
constexpr const wchar_t* Second = L"\\to\\b.txt";

DWORD failureCode = 0;

BOOL Fail() {
    SetLastError(failureCode);
    return FALSE;
}

// Every call that changes something fails with failureCode.
struct FailingCalls {
    Replaced<decltype(ce::FileCalls::deleteFile)> noDelete{ce::fileCalls.deleteFile,
                                                           [](const wchar_t*) { return Fail(); }};
    Replaced<decltype(ce::FileCalls::moveFile)> noMove{ce::fileCalls.moveFile,
                                                       [](const wchar_t*, const wchar_t*) { return Fail(); }};
    Replaced<decltype(ce::FileCalls::copyFile)> noCopy{
        ce::fileCalls.copyFile, [](const wchar_t*, const wchar_t*, BOOL) { return Fail(); }};
    Replaced<decltype(ce::FileCalls::createDirectory)> noCreate{
        ce::fileCalls.createDirectory, [](const wchar_t*, SECURITY_ATTRIBUTES*) { return Fail(); }};
    Replaced<decltype(ce::FileCalls::setFileAttributes)> noAttributes{
        ce::fileCalls.setFileAttributes, [](const wchar_t*, DWORD) { return Fail(); }};
    Replaced<decltype(ce::FileCalls::removeDirectory)> noRemove{ce::fileCalls.removeDirectory,
                                                                [](const wchar_t*) { return Fail(); }};
};

using Action = bool (*)(HWND owner);

bool Delete(HWND owner) {
    return DeleteFileOrReport(owner, First);
}
bool Move(HWND owner) {
    return MoveFileOrReport(owner, First, Second);
}
bool Copy(HWND owner) {
    return CopyFileOrReport(owner, First, Second, false);
}
bool CreateFolder(HWND owner) {
    return CreateDirectoryOrReport(owner, First, nullptr);
}
bool SetAttributes(HWND owner) {
    return SetAttributesOrReport(owner, First, FILE_ATTRIBUTE_HIDDEN);
}
bool RemoveFolder(HWND owner) {
    return RemoveDirectoryOrReport(owner, First);
}

struct Failure {
    const char* name;
    Action action;
    DWORD code;
    const wchar_t* english;
    const wchar_t* japanese;
};

constexpr Failure Failures[] = {
    {"delete_denied", Delete, 5, L"Access denied", L"ﾌｧｲﾙにｱｸｾｽできません"},
    {"delete_otherwise", Delete, 32, L"Error DeleteFile 32", L"Error DeleteFile 32"},
    {"move_in_use", Move, 32, L"\\from\\100%s.txt is in use", L"\\from\\100%s.txt は使用中です"},
    {"move_disk_full", Move, 112, L"There is not enough space on the disk", L"ﾃﾞｨｽｸがいっぱいです"},
    {"move_denied", Move, 5, L"Error Move file 5", L"Error Move file 5"},
    {"move_otherwise", Move, 183, L"Error Move file 183", L"Error Move file 183"},
    {"copy_disk_full", Copy, 112, L"The disk is full", L"ﾃﾞｨｽｸがいっぱいです"},
    {"copy_checksum", Copy, 23, L"CRC ERROR \\from\\100%s.txt", L"CRCｴﾗｰ \\from\\100%s.txt"},
    {"copy_wrong_parameter", Copy, 87, L"Invalid parameter", L"ﾌｧｲﾙが壊れているかもしれません"},
    {"copy_swap", Copy, 999, L"SWAP ERROR \\from\\100%s.txt", L"ｽﾜｯﾌﾟｴﾗｰ \\from\\100%s.txt"},
    {"copy_in_use", Copy, 32, L"\\from\\100%s.txt is in use", L"\\from\\100%s.txt は使用中です"},
    {"copy_mapped", Copy, 1224, L"\\from\\100%s.txt is in use", L"\\from\\100%s.txt は使用中です"},
    {"copy_denied", Copy, 5, L"Error CopyFile 5", L"Error CopyFile 5"},
    {"create_folder_nowhere", CreateFolder, 3, L"Can't find the path specified. '\\from\\100%s.txt'",
     L"ﾃﾞｨﾚｸﾄﾘﾊﾟｽ '\\from\\100%s.txt'が見つかりません。"},
    {"create_folder_disk_full", CreateFolder, 112, L"There is not enough space on the disk.",
     L"ﾃﾞｨｽｸに十分な空き領域がありません。"},
    {"create_folder_otherwise", CreateFolder, 183, L"Error CreateDirectory 183",
     L"Error CreateDirectory 183"},
    {"set_attributes_denied", SetAttributes, 5, L"Error SetFileAttribute 5", L"Error SetFileAttribute 5"},
    {"set_attributes_otherwise", SetAttributes, 112, L"Error SetFileAttribute 112",
     L"Error SetFileAttribute 112"},
    {"remove_folder_not_empty", RemoveFolder, 145, L"Folder not empty", L"ﾌｫﾙﾀﾞが空でありません"},
    {"remove_folder_otherwise", RemoveFolder, 5, L"Error RemoveDirectory 5", L"Error RemoveDirectory 5"},
};

void PrintTo(const Failure& failure, std::ostream* out) {
    *out << failure.name;
}

// The failing action in this language: one error box with this text, owned by the window, and false.
void ExpectReport(const Failure& failure, UiLanguage language, const wchar_t* title, const wchar_t* text) {
    const TestWorld world(language);
    HostWindow host;
    const FailingCalls failing;
    failureCode = failure.code;
    const AnsweredBoxes boxes{IDOK};
    EXPECT_FALSE(failure.action(host.Handle()));
    ASSERT_EQ(boxes.Seen().size(), 1u);
    const SeenBox& box = boxes.Seen()[0];
    EXPECT_EQ(box.caption, title);
    EXPECT_TRUE(AnsweredBoxes::Shows(box, text)) << testing::PrintToString(box.texts);
    EXPECT_EQ(box.icon, LoadIconW(nullptr, IDI_HAND));
    EXPECT_EQ(box.buttons.size(), 1u);
    EXPECT_EQ(box.owner, host.Handle());
}

}  // namespace

class FileActionFailure : public testing::TestWithParam<Failure> {};

TEST_P(FileActionFailure, is_reported_once_in_english) {
    ExpectReport(GetParam(), UiLanguage::English, L"Error", GetParam().english);
}

TEST_P(FileActionFailure, is_reported_once_in_japanese) {
    ExpectReport(GetParam(), UiLanguage::Japanese, L"ｴﾗｰ", GetParam().japanese);
}

INSTANTIATE_TEST_SUITE_P(Codes, FileActionFailure, testing::ValuesIn(Failures),
                         [](const testing::TestParamInfo<Failure>& row) {
                             return std::string(row.param.name);
                         });

class FileActions : public testing::Test {
  protected:
    [[nodiscard]] static bool Stands(const std::wstring& path) {
        return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    TestWorld world_;
    TempTree tree_;
    AnsweredBoxes boxes_{IDOK};
};

TEST_F(FileActions, that_succeed_say_nothing) {
    const std::wstring file = tree_.AddFile(L"a.txt", "text");
    const std::wstring moved = tree_.Path(L"b.txt");
    const std::wstring copy = tree_.Path(L"c.txt");
    const std::wstring folder = tree_.Path(L"folder");
    EXPECT_TRUE(MoveFileOrReport(nullptr, file.c_str(), moved.c_str()));
    EXPECT_TRUE(CopyFileOrReport(nullptr, moved.c_str(), copy.c_str(), true));
    EXPECT_TRUE(CreateDirectoryOrReport(nullptr, folder.c_str(), nullptr));
    EXPECT_FALSE(Stands(file));
    EXPECT_TRUE(Stands(moved) && Stands(copy) && Stands(folder));
    EXPECT_TRUE(SetAttributesOrReport(nullptr, copy.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(GetFileAttributesW(copy.c_str()) & FILE_ATTRIBUTE_HIDDEN, DWORD{FILE_ATTRIBUTE_HIDDEN});
    EXPECT_TRUE(DeleteFileOrReport(nullptr, copy.c_str()));
    EXPECT_TRUE(RemoveDirectoryOrReport(nullptr, folder.c_str()));
    EXPECT_FALSE(Stands(copy) || Stands(folder));
    EXPECT_TRUE(boxes_.Seen().empty());
}

TEST_F(FileActions, a_copy_overwrites_only_when_it_may) {
    const std::wstring from = tree_.AddFile(L"from.txt", "new");
    const std::wstring to = tree_.AddFile(L"to.txt", "older");
    EXPECT_FALSE(CopyFileOrReport(nullptr, from.c_str(), to.c_str(), true));
    ASSERT_EQ(boxes_.Seen().size(), 1u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes_.Seen()[0], L"Error CopyFile 80"));
    EXPECT_TRUE(CopyFileOrReport(nullptr, from.c_str(), to.c_str(), false));
    EXPECT_EQ(boxes_.Seen().size(), 1u);
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    ASSERT_TRUE(GetFileAttributesExW(to.c_str(), GetFileExInfoStandard, &data));
    EXPECT_EQ(data.nFileSizeLow, 3u);
}

TEST_F(FileActions, copying_onto_a_file_that_is_held_open_names_the_source) {
    const std::wstring from = tree_.AddFile(L"from.txt", "new");
    const std::wstring to = tree_.AddFile(L"to.txt", "older");
    const HANDLE held =
        CreateFileW(to.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(CopyFileOrReport(nullptr, from.c_str(), to.c_str(), false));
    CloseHandle(held);
    ASSERT_EQ(boxes_.Seen().size(), 1u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes_.Seen()[0], from + L" is in use"));
}
