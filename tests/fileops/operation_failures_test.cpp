// Failures that do not end a run, and files that are out of the ordinary.

#include "platform/windows_ce.h"
#include "resources/resource_ids.h"
#include "tests/fileops/failing_calls.h"
#include "tests/fileops/operation_test.h"
#include "tests/support/replaced_calls.h"

namespace {

BOOL Refuse() {
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

using SetAttributesCall = decltype(ce::FileCalls::setFileAttributes);
using DeleteCall = decltype(ce::FileCalls::deleteFile);

}  // namespace

class OperationFailures : public OperationTest {};

TEST_F(OperationFailures, a_source_that_goes_away_during_the_run_ends_it) {
    const struct {
        FileOperationKind kind;
        const char* boxes;
        const char* after;
    } rows[] = {
        {FileOperationKind::Copy, "Error: Error CopyFile 2", "s/a=1 s/c=3 d/a=1"},
        // An update ends without a word.
        {FileOperationKind::Update, "", "s/a=1 s/c=3 d/a=1"},
        {FileOperationKind::Move, "Error: Error Move file 2", "s/c=3 d/a=1"},
        {FileOperationKind::Delete, "Error: Error DeleteFile 2", "s/c=3 d/"},
    };
    for (const auto& row : rows) {
        TempTree fresh;
        AddContents(fresh, "s/a=1 s/b=2 s/c=3 d/");
        operation_.operation = row.kind;
        operation_.confirm = false;
        operation_.ClearSources();
        for (const char* const source : {"s/a", "s/b", "s/c"})
            ASSERT_TRUE(operation_.AddSource(PathIn(fresh, source).c_str()));
        ASSERT_TRUE(operation_.SetDestination(PathIn(fresh, "d").c_str()));
        FailingCalls calls;
        calls.atCall = [&](int number) {
            if (number != 1) return;
            EXPECT_TRUE(DeleteFileW(PathIn(fresh, "s/b").c_str()));
        };
        EXPECT_EQ(Run(), row.boxes);
        EXPECT_EQ(ContentsOf(fresh), InOrder(row.after));
    }
}

TEST_F(OperationFailures, a_drive_that_is_not_there_is_told_and_takes_nothing) {
    wchar_t drive = L'Z';
    while (drive > L'D' && (GetLogicalDrives() & (1u << (drive - L'A'))) != 0)
        --drive;
    ASSERT_EQ(GetLogicalDrives() & (1u << (drive - L'A')), 0u) << "every drive is there";
    const std::wstring folder = drive + std::wstring(L":\\x");
    // Which code it is, differs from system to system.
    ASSERT_FALSE(CreateDirectoryW(Literal(folder).c_str(), nullptr));
    const DWORD code = GetLastError();
    const std::string number = std::to_string(code);
    const std::string notFound =
        code == ERROR_PATH_NOT_FOUND
            ? "Error: Can't find the path specified. '" + std::string(folder.begin(), folder.end()) + "'"
            : "Error: Error CreateDirectory " + number;
    AddContents(tree_, "s/m/f=1 s/z=Z");
    operation_.confirm = false;
    const struct {
        FileOperationKind kind;
        const char* source;
        std::string boxes;
    } rows[] = {
        {FileOperationKind::Copy, "s/m", notFound},
        {FileOperationKind::Copy, "s/z", "Error: Error CopyFile " + number},
        {FileOperationKind::Update, "s/m", notFound},
        {FileOperationKind::Move, "s/m", notFound},
        {FileOperationKind::Move, "s/z", "Error: Error Move file " + number},
        {FileOperationKind::Exclude, "s/m", "Error: Error DeleteFile " + number},
    };
    for (const auto& row : rows) {
        Prepare(row.kind, {row.source, "s/z"}, "");
        ASSERT_TRUE(operation_.SetDestination(folder.c_str()));
        EXPECT_EQ(Run(), row.boxes) << row.source;
        EXPECT_EQ(Contents(), InOrder("s/m/f=1 s/z=Z"));
    }
}

TEST_F(OperationFailures, attributes_that_stay_are_told_and_the_copy_is_still_made) {
    AddContents(tree_, "s/a=new s/z=Z d/a=old");
    operation_.confirm = false;
    Prepare(FileOperationKind::Copy, {"s/a", "s/z"}, "d");
    const Replaced<SetAttributesCall> refused(ce::fileCalls.setFileAttributes,
                                              [](const wchar_t*, DWORD) { return Refuse(); });
    EXPECT_EQ(Run(), "Error: Error SetFileAttribute 5");
    EXPECT_EQ(Contents(), InOrder("s/a=new s/z=Z d/a=new d/z=Z"));
}

TEST_F(OperationFailures, attributes_that_stay_before_a_deletion_are_not_told) {
    AddContents(tree_, "s/a=1 s/b=2");
    operation_.confirm = false;
    Prepare(FileOperationKind::Delete, {"s"}, "");
    const Replaced<SetAttributesCall> refused(ce::fileCalls.setFileAttributes,
                                              [](const wchar_t*, DWORD) { return Refuse(); });
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), "");
}

TEST_F(OperationFailures, a_file_that_a_move_cannot_delete_first_is_told_and_the_move_is_still_tried) {
    AddContents(tree_, "s/a=new s/z=Z d/a=old");
    Prepare(FileOperationKind::Move, {"s/a", "s/z"}, "d");
    const Replaced<DeleteCall> refused(ce::fileCalls.deleteFile, [](const wchar_t*) { return Refuse(); });
    EXPECT_EQ(Run({IDYES, IDOK}), "Confirm File Replace/4; Error: Access denied; Error: Error Move file 183");
    EXPECT_EQ(Contents(), InOrder("s/a=new s/z=Z d/a=old"));
}

TEST_F(OperationFailures, a_read_only_hidden_system_file_is_overwritten_by_a_copy) {
    AddContents(tree_, "s/a=new d/a=old");
    const std::wstring existing = PathIn(tree_, "d/a");
    ASSERT_TRUE(SetFileAttributesW(existing.c_str(),
                                   FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
    Prepare(FileOperationKind::Copy, {"s/a"}, "d");
    EXPECT_EQ(Run({IDYES}), "Confirm File Replace/4");
    EXPECT_EQ(Contents(), InOrder("s/a=new d/a=new"));
    EXPECT_EQ(GetFileAttributesW(existing.c_str()) & FILE_ATTRIBUTE_READONLY, DWORD{0});
}

TEST_F(OperationFailures, hidden_entries_are_copied_and_deleted_like_others) {
    AddContents(tree_, "s/a=1 s/m/b=2 d/");
    for (const char* const path : {"s/a", "s/m"})
        ASSERT_TRUE(SetFileAttributesW(PathIn(tree_, path).c_str(), FILE_ATTRIBUTE_HIDDEN));
    operation_.confirm = false;
    Prepare(FileOperationKind::Copy, {"s"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/m/b=2 d/s/a=1 d/s/m/b=2"));
    Prepare(FileOperationKind::Delete, {"s"}, "");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("d/s/a=1 d/s/m/b=2"));
}

TEST_F(OperationFailures, a_question_that_names_the_folder_tells_its_whole_path) {
    AddContents(tree_, "s/m/f=1 d/m/");
    Prepare(FileOperationKind::Copy, {"s/m"}, "d");
    std::wstring question;
    const auto read = [&](HWND box) {
        wchar_t text[600] = L"";
        GetDlgItemTextW(box, STATIC_QUESTION, text, 600);
        question = text;
    };
    EXPECT_EQ(Run({IDNO}, read), "Confirm Folder Replace/4");
    EXPECT_NE(question.find(L"'" + PathIn(tree_, "d/m") + L"'"), std::wstring::npos);
}

class OperationInJapanese : public OperationTest {
  protected:
    OperationInJapanese() : OperationTest(UiLanguage::Japanese) {}

    // The title of the question and the text of its button for all.
    std::wstring titleAndAll_;
    void RunAndRead(FileOperationKind kind, const std::string& source, const std::string& destination) {
        Prepare(kind, {source}, destination);
        Run({IDCANCEL}, [this](HWND box) {
            wchar_t title[64] = L"";
            wchar_t all[64] = L"";
            GetWindowTextW(box, title, 64);
            GetDlgItemTextW(box, BUTTON_YES_TO_ALL, all, 64);
            titleAndAll_ = title + std::wstring(L"|") + all;
        });
    }
};

TEST_F(OperationInJapanese, every_question_is) {
    AddContents(tree_, "s/a=1 s/m/ d/a=2 d/m/f=3");
    RunAndRead(FileOperationKind::Copy, "s/a", "d");
    EXPECT_EQ(titleAndAll_, L"ﾌｧｲﾙの置換の確認|全上書(&A)");
    RunAndRead(FileOperationKind::Move, "s/m", "d");
    EXPECT_EQ(titleAndAll_, L"ﾌｫﾙﾀﾞの置換の確認|すべて上書き(&A)");
    RunAndRead(FileOperationKind::Delete, "s/a", "");
    EXPECT_EQ(titleAndAll_, L"ﾌｧｲﾙの削除の確認|全削除(&A)");
    RunAndRead(FileOperationKind::Exclude, "s/none", "d");
    EXPECT_EQ(titleAndAll_, L"ﾌｫﾙﾀﾞの削除の確認|全削除(&A)");
}

TEST_F(OperationInJapanese, the_refusal_of_an_overlap_is) {
    AddContents(tree_, "a/b=1");
    Prepare(FileOperationKind::Copy, {"a"}, "a");
    std::wstring message;
    Run({IDOK}, [&](HWND box) {
        wchar_t text[64] = L"";
        for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
            GetWindowTextW(child, text, 64);
            message += text;
        }
    });
    EXPECT_NE(message.find(L"送り側と受け側が同じです"), std::wstring::npos);
}
