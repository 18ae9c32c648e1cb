// Who is enabled, active and focused during a file operation, and how it is stopped.

#include "tests/hands/operation_by_hand.h"

namespace {

constexpr int Few = 12;
// More than anybody waits for: a run with these is stopped.
constexpr int Many = 600;

constexpr int YesToAll = BUTTON_YES_TO_ALL;

BOOL RefuseAttributes(const wchar_t*, DWORD) {
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

// Refuses the next dialog of this thread.
bool refuseNextDialog = false;

LRESULT CALLBACK RefuseDialog(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && refuseNextDialog) {
        wchar_t name[16] = L"";
        GetClassNameW(reinterpret_cast<HWND>(wParam), name, 16);
        if (lstrcmpW(name, L"#32770") == 0) {
            refuseNextDialog = false;
            return 1;
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

TEST_F(OperationByHand, the_dialog_has_the_focus_from_the_first_file_to_the_last) {
    PrepareCopy(Few);
    RunWith([] {});
    EXPECT_EQ(Files(), Few);
}

TEST_F(OperationByHand, clicks_and_keys_for_the_window_behind_are_lost_while_files_are_copied) {
    PrepareCopy(Many);
    RunWith([this] {
        AwaitProgress();
        ClickBehind();
        for (const WORD key : std::initializer_list<WORD>{VK_DOWN, VK_TAB, VK_F1, VK_DELETE})
            PressKey(key);
        PressKey('Q', {VK_CONTROL});
        AwaitFiles(5);
        AwaitProgress();
        PressKey(VK_ESCAPE);
    });
    EXPECT_LT(Files(), Many);
    EXPECT_TRUE(IsWindow(Main()));
    EXPECT_EQ(ShownPage(), NamePageIndex);
}

// Wine reads the real keyboard when a window comes up under the pointer, and finds that Alt is not held: it
// goes down again until it stays.
void PressAltF4(HWND) {
    constexpr DWORD LongestReading = 200;
    const auto isUp = [] { return GetAsyncKeyState(VK_MENU) >= 0; };
    WaitUntil("Alt to stay down", [&] {
        HoldKey(VK_MENU);
        return !HoldsWithin(LongestReading, isUp);
    });
    PressKey(VK_F4);
    ReleaseKey(VK_MENU);
}

// How a run is stopped.
struct StopWay {
    const char* name;
    void (*act)(HWND progress);
};

void PrintTo(const StopWay& way, std::ostream* out) {
    *out << way.name;
}

const StopWay StopWays[] = {
    {"click", [](HWND progress) { ClickAt(MiddleOf(GetDlgItem(progress, BUTTON_STOP))); }},
    {"enter", [](HWND) { PressKey(VK_RETURN); }},
    {"escape", [](HWND) { PressKey(VK_ESCAPE); }},
    {"space", [](HWND) { PressKey(VK_SPACE); }},
    {"alt_f4", PressAltF4},
    {"cross", [](HWND progress) { ClickAt(CancelOf(progress)); }},
};

class OperationStopWays : public OperationByHand, public testing::WithParamInterface<StopWay> {};

TEST_P(OperationStopWays, stop_a_run_without_a_question) {
    PrepareCopy(Many);
    RunWith([this] { GetParam().act(AwaitProgress()); });
    EXPECT_LT(Files(), Many);
}

TEST_P(OperationStopWays, stop_a_run_after_a_question) {
    PrepareCopyWithQuestion(Many);
    RunWith([this] {
        AnswerByPointer(AwaitBox(), IDNO);
        AwaitFiles(3);
        GetParam().act(AwaitProgress());
    });
    EXPECT_GE(Files(), 3);
    EXPECT_LT(Files(), Many);
}

INSTANTIATE_TEST_SUITE_P(Ways, OperationStopWays, testing::ValuesIn(StopWays),
                         testing::PrintToStringParamName());

TEST_F(OperationByHand, an_enter_key_held_down_over_a_question_answers_it_and_stops_nothing) {
    constexpr int Repeats = 30;
    PrepareCopyWithQuestion(Many);
    RunWith([this] {
        const HWND question = AwaitBox();
        RepeatKey(VK_RETURN, Repeats);
        AwaitNoBox(question);
        AwaitFiles(Repeats + 5);
        AwaitProgress();
        PressKey(VK_ESCAPE);
    });
    EXPECT_LT(Files(), Many);
}

// Each question, with how many files are handled after each of its answers.
struct AnswerCase {
    int button;
    int files;
};

struct QuestionCase {
    const char* name;
    FileOperationKind kind;
    bool multiple;
    std::vector<std::wstring> sources;
    std::vector<AnswerCase> answers;
};

void PrintTo(const QuestionCase& row, std::ostream* out) {
    *out << row.name;
}

// The folder "many" comes last where the run goes on: no further question is asked about it.
const QuestionCase QuestionCases[] = {
    {"file_replace",
     FileOperationKind::Copy,
     false,
     {L"a.txt", L"many"},
     {{IDYES, Few + 1}, {IDNO, Few}, {IDCANCEL, 0}}},
    {"file_replace_of_many",
     FileOperationKind::Copy,
     true,
     {L"a.txt", L"many"},
     {{IDYES, Few + 1}, {YesToAll, Few + 1}, {IDNO, Few}, {IDCANCEL, 0}}},
    {"folder_replace",
     FileOperationKind::Copy,
     true,
     {L"f", L"many"},
     {{IDYES, Few + 1}, {YesToAll, Few + 1}, {IDNO, Few}, {IDCANCEL, 0}}},
    {"file_delete",
     FileOperationKind::Delete,
     false,
     {L"a.txt", L"empty"},
     {{IDYES, 2}, {IDNO, 1}, {IDCANCEL, 0}}},
    {"file_delete_of_many",
     FileOperationKind::Delete,
     true,
     {L"a.txt", L"empty"},
     {{IDYES, 2}, {YesToAll, 2}, {IDNO, 1}, {IDCANCEL, 0}}},
    // Here No ends the run as well.
    {"folder_delete_of_exclude",
     FileOperationKind::Exclude,
     true,
     {L"many"},
     {{IDYES, 1}, {YesToAll, 1}, {IDNO, 0}, {IDCANCEL, 0}}},
};

class OperationQuestions : public OperationByHand, public testing::WithParamInterface<QuestionCase> {
  protected:
    // Also what an earlier answer took away.
    void PrepareQuestion() {
        tree_.AddFile(L"a.txt", "new");
        tree_.AddFile(L"f\\new.txt", "new");
        tree_.AddFile(L"d\\a.txt", "old");
        if (!Stands(L"empty")) tree_.AddFolder(L"empty");
        if (!Stands(L"many")) tree_.AddNumberedFiles(L"many", Few);
        const wchar_t* const other = GetParam().kind == FileOperationKind::Exclude ? L"d\\extra" : L"d\\f";
        if (!Stands(other)) tree_.AddFolder(other);
        RemoveDirectoryW(tree_.Path(L"d\\many").c_str());
        Prepare(GetParam().kind, GetParam().sources);
        Window().Operation().multiple = GetParam().multiple;
    }
    [[nodiscard]] bool Stands(const wchar_t* path) const {
        return GetFileAttributesW(tree_.Path(path).c_str()) != INVALID_FILE_ATTRIBUTES;
    }
    void RunAnswered(const AnswerCase& answer, bool byPointer) {
        SCOPED_TRACE(std::to_string(answer.button) + (byPointer ? " by pointer" : " by keys"));
        PrepareQuestion();
        const int before = Files();
        RunWith([&] {
            const HWND question = AwaitBox();
            if (GetWindow(question, GW_OWNER) != Main()) throw DriverError("the question has another owner");
            if (byPointer) {
                AnswerByPointer(question, answer.button);
            } else {
                AnswerByKeys(question, answer.button);
            }
        });
        EXPECT_EQ(Files() - before, answer.files);
    }
};

TEST_P(OperationQuestions, give_the_input_back_to_the_dialog_after_each_answer) {
    for (const AnswerCase& answer : GetParam().answers) {
        RunAnswered(answer, false);
        const bool hasButton = GetParam().multiple || answer.button != IDCANCEL;
        if (hasButton) RunAnswered(answer, true);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, OperationQuestions, testing::ValuesIn(QuestionCases),
                         testing::PrintToStringParamName());

TEST_F(OperationByHand, while_a_question_is_open_neither_window_behind_it_takes_anything) {
    PrepareCopyWithQuestion(Few);
    RunWith([this] {
        const HWND question = AwaitBox();
        ClickBehind();
        // Stop itself, or as much of the progress dialog as the question leaves in sight.
        RECT place{};
        GetWindowRect(Progress(), &place);
        for (const POINT point : {MiddleOf(Stop()), POINT{place.left + 8, place.bottom - 8},
                                  POINT{place.right - 8, place.bottom - 8}}) {
            if (GetAncestor(WindowFromPoint(point), GA_ROOT) == Progress()) ClickAt(point);
        }
        if (AwaitBox() != question) throw DriverError("another window is in front");
        AnswerByKeys(question, IDNO);
    });
    EXPECT_EQ(Files(), Few);
}

TEST_F(OperationByHand, a_question_that_cannot_be_made_ends_the_run_as_cancel_does) {
    PrepareCopyWithQuestion(Few);
    refuseNextDialog = false;
    const HHOOK refusal = SetWindowsHookExW(WH_CBT, RefuseDialog, nullptr, GetCurrentThreadId());
    Prepare(FileOperationKind::Copy, {L"s", L"a.txt", L"s"});
    atFile_ = [] { refuseNextDialog = true; };
    RunWith([] {});
    UnhookWindowsHookEx(refusal);
    EXPECT_EQ(Files(), Few);
}

TEST_F(OperationByHand, an_error_box_keeps_both_windows_behind_it_from_taking_anything) {
    PrepareCopy(Few);
    FailNextCopy(ERROR_CRC);
    RunWith([this] {
        const HWND box = AwaitBox();
        if (GetWindow(box, GW_OWNER) != Progress()) throw DriverError("the error box has another owner");
        ClickBehind();
        PressKey(VK_F1);
        if (AwaitBox() != box) throw DriverError("another window is in front");
        PressKey(VK_RETURN);
        AwaitNoBox(box);
    });
    EXPECT_EQ(Files(), 1);
}

TEST_F(OperationByHand, after_an_error_box_in_the_middle_the_dialog_has_the_focus_again) {
    PrepareCopyWithQuestion(Few);
    const Replaced<decltype(ce::FileCalls::setFileAttributes)> refused(ce::fileCalls.setFileAttributes,
                                                                       RefuseAttributes);
    RunWith([this] {
        AnswerByKeys(AwaitBox(), IDYES);
        const HWND box = AwaitBox();
        ClickAt(MiddleOf(GetWindow(box, GW_CHILD) != nullptr ? GetDlgItem(box, IDOK) : box));
        AwaitNoBox(box);
    });
    EXPECT_EQ(Files(), Few + 1);
}

TEST_F(OperationByHand, an_activation_of_the_window_behind_goes_to_the_dialog_on_top) {
    PrepareCopyWithQuestion(Many);
    RunWith([this] {
        const HWND question = AwaitBox();
        for (const HWND behind : {Main(), Progress()}) {
            SetForegroundWindow(behind);
            if (AwaitBox() != question) throw DriverError("another window is in front");
        }
        AnswerByKeys(question, IDNO);
        AwaitProgress();
        SetForegroundWindow(Main());
        AwaitProgress();
        PressKey(VK_ESCAPE);
    });
    EXPECT_LT(Files(), Many);
}

TEST_F(OperationByHand, a_window_minimised_and_restored_in_the_middle_leaves_the_focus_with_the_dialog) {
    PrepareCopyWithQuestion(Many);
    RunWith([this] {
        const HWND question = AwaitBox();
        ShowWindow(Main(), SW_MINIMIZE);
        ShowWindow(Main(), SW_RESTORE);
        if (AwaitBox() != question) throw DriverError("another window is in front");
        AnswerByKeys(question, IDNO);
        AwaitProgress();
        PressKey(VK_ESCAPE);
    });
    EXPECT_LT(Files(), Many);
}

TEST_F(OperationByHand, closing_the_main_window_from_outside_gives_up_the_question_and_ends_the_run) {
    PrepareCopyWithQuestion(Few);
    RunToTheProgramsEnd([this] {
        const HWND question = AwaitBox();
        PostMessageW(Main(), WM_CLOSE, 0, 0);
        AwaitNoBox(question);
    });
    EXPECT_EQ(Files(), 0);
    EXPECT_EQ(world_.TheApplication().Run(), 0);
    EXPECT_FALSE(IsWindow(Main()));
}

TEST_F(OperationByHand, a_log_off_saves_the_settings_and_ends_the_run_before_the_next_file) {
    PrepareCopy(Many);
    int filesAtEnd = 0;
    RunToTheProgramsEnd([&] {
        AwaitProgress();
        AwaitFiles(3);
        SendMessageW(Main(), WM_ENDSESSION, TRUE, ENDSESSION_LOGOFF);
        filesAtEnd = Files();
    });
    EXPECT_EQ(Files(), filesAtEnd);
    EXPECT_TRUE(AreSettingsSaved());
    EXPECT_EQ(world_.TheApplication().Run(), 0);
}

TEST_F(OperationByHand, a_log_off_over_a_question_counts_as_cancel) {
    PrepareCopyWithQuestion(Few);
    RunToTheProgramsEnd([&] {
        static_cast<void>(AwaitBox());
        SendMessageW(Main(), WM_ENDSESSION, TRUE, ENDSESSION_LOGOFF);
    });
    EXPECT_EQ(Files(), 0);
    EXPECT_TRUE(AreSettingsSaved());
    EXPECT_EQ(world_.TheApplication().Run(), 0);
}
