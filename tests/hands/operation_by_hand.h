#pragma once

// A file operation in a person's hands. No command of the program starts one, so the real main window lives
// in the test's own process and runs it, while a second thread presses the keys and moves the pointer. The
// windows are judged at each file on the program's own thread, and what a window behind the dialog on top
// would take is caught where that thread takes its messages.

#include <atomic>
#include <functional>
#include <string>

#include "tests/app/main_window_test.h"
#include "tests/support/deadline.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"
#include "tests/support/user_input.h"

class OperationByHand : public MainWindowTest {
  protected:
    OperationByHand();

    void SetUp() override;
    void TearDown() override;

    // What to do, with paths in the tree.
    void Prepare(FileOperationKind kind, const std::vector<std::wstring>& sources);
    // The folder "s" of so many files, to be copied into the folder "d".
    void PrepareCopy(int files);
    // The same after one file that stands in "d" already: one question, and many files behind it.
    void PrepareCopyWithQuestion(int files);

    // Runs the operation while the person does this on a thread of her own. Afterwards the main window takes
    // input again and has the focus where it was.
    void RunWith(const std::function<void()>& person);
    // The same where the main window is closed meanwhile.
    void RunToTheProgramsEnd(const std::function<void()>& person);
    // Called on the program's thread before each file is copied or deleted.
    std::function<void()> atFile_;
    // The next file that is copied fails with this code.
    static void FailNextCopy(DWORD code);
    // Files handled so far.
    [[nodiscard]] static int Files();
    static void AwaitFiles(int more);

    [[nodiscard]] HWND Progress() { return Window().Operation().Handle(); }
    [[nodiscard]] HWND Stop() { return GetDlgItem(Progress(), BUTTON_STOP); }
    // The progress dialog in front, with the focus on Stop.
    HWND AwaitProgress();
    // A question or an error box in front, and neither window behind it enabled.
    HWND AwaitBox();
    // Nothing of that kind is open any more.
    void AwaitNoBox(HWND box);
    // The button of a question: clicked, or reached with Tab and pressed with Space; Cancel also with Esc.
    void AnswerByPointer(HWND question, int button);
    void AnswerByKeys(HWND question, int button);
    // A click on each window of the main window's that the dialogs leave in sight.
    void ClickBehind();

    // In the registry.
    [[nodiscard]] static bool AreSettingsSaved();

    [[nodiscard]] HWND Main() const { return main_; }
    TempTree tree_;

  private:
    static BOOL Copy(const wchar_t* from, const wchar_t* to, BOOL failIfExists);
    static BOOL Delete(const wchar_t* path);
    static BOOL RemoveFolder(const wchar_t* path);
    static LRESULT CALLBACK WatchInput(int code, WPARAM wParam, LPARAM lParam);
    void MeetFile();
    [[nodiscard]] std::string Fault();
    [[nodiscard]] HWND FindBox();
    [[nodiscard]] bool IsAboveMain(HWND dialog) const;

    static OperationByHand* present;

    HWND main_ = nullptr;
    HWND focusBefore_ = nullptr;
    HHOOK hook_ = nullptr;
    int inputBehind_ = 0;
    std::string fault_;
    Replaced<decltype(ce::FileCalls::copyFile)> copy_{ce::fileCalls.copyFile, Copy};
    Replaced<decltype(ce::FileCalls::deleteFile)> deletion_{ce::fileCalls.deleteFile, Delete};
    Replaced<decltype(ce::FileCalls::removeDirectory)> removal_{ce::fileCalls.removeDirectory, RemoveFolder};
};

[[nodiscard]] POINT MiddleOf(HWND window);
// The cross on a dialog's own bar.
[[nodiscard]] POINT CancelOf(HWND dialog);
