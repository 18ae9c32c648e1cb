#include "tests/hands/operation_by_hand.h"

#include <thread>

#include "app/product.h"
#include "base/registry_key.h"

namespace {

// As slow as a person's file, so that there is time to press something.
constexpr DWORD TimeOfFile = 10;

std::atomic<int> files;
std::atomic<DWORD> nextFailure;

UiLanguage LanguageOfWorld() {
    return PRIMARYLANGID(GetSystemDefaultLangID()) == LANG_JAPANESE ? UiLanguage::Japanese
                                                                    : UiLanguage::English;
}

struct State {
    HWND foreground = nullptr;
    HWND focus = nullptr;
};

State StateNow() {
    GUITHREADINFO now{};
    now.cbSize = sizeof now;
    GetGUIThreadInfo(0, &now);
    return {GetForegroundWindow(), now.hwndFocus};
}

bool IsBox(HWND window) {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    return lstrcmpW(name, L"#32770") == 0;
}

struct BoxSearch {
    HWND progress;
    HWND found = nullptr;
};

BOOL CALLBACK TakeBox(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<BoxSearch*>(parameter);
    if (window == search.progress || !IsBox(window) || !IsWindowVisible(window)) return TRUE;
    search.found = window;
    return FALSE;
}

bool IsInput(UINT message) {
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN || message == WM_CHAR ||
           message == WM_LBUTTONDOWN || message == WM_NCLBUTTONDOWN;
}

}  // namespace

OperationByHand* OperationByHand::present = nullptr;

OperationByHand::OperationByHand() = default;

void OperationByHand::SetUp() {
    files = 0;
    nextFailure = 0;
    Open(LanguageOfWorld());
    main_ = Handle();
    present = this;
    hook_ = SetWindowsHookExW(WH_GETMESSAGE, WatchInput, nullptr, GetCurrentThreadId());
    SetForegroundWindow(main_);
    SetFocus(EditOf(COMBO_NAME));
    PumpQueue();
    focusBefore_ = GetFocus();
    ASSERT_EQ(GetForegroundWindow(), main_);
}

void OperationByHand::TearDown() {
    UnhookWindowsHookEx(hook_);
    present = nullptr;
}

void OperationByHand::Prepare(FileOperationKind kind, const std::vector<std::wstring>& sources) {
    FileOperation& operation = Window().Operation();
    operation.operation = kind;
    operation.confirm = true;
    operation.ClearSources();
    for (const std::wstring& source : sources)
        ASSERT_TRUE(operation.AddSource(tree_.Path(source).c_str()));
    ASSERT_TRUE(operation.SetDestination(tree_.Path(L"d").c_str()));
}

void OperationByHand::PrepareCopy(int count) {
    tree_.AddNumberedFiles(L"s", count);
    tree_.AddFolder(L"d");
    Prepare(FileOperationKind::Copy, {L"s"});
}

void OperationByHand::PrepareCopyWithQuestion(int count) {
    PrepareCopy(count);
    tree_.AddFile(L"a.txt", "new");
    tree_.AddFile(L"d\\a.txt", "old");
    Prepare(FileOperationKind::Copy, {L"a.txt", L"s"});
}

void OperationByHand::RunToTheProgramsEnd(const std::function<void()>& person) {
    fault_.clear();
    std::string failure;
    std::thread hands([&] {
        try {
            person();
        } catch (const std::exception& error) {
            failure = error.what();
            PostMessageW(main_, WM_CLOSE, 0, 0);
        }
    });
    EXPECT_EQ(Window().Operation().RunModal(), 1);
    hands.join();
    EXPECT_EQ(failure, "");
    EXPECT_EQ(fault_, "");
    EXPECT_EQ(inputBehind_, 0) << "a window behind the dialog on top took keys or clicks";
}

void OperationByHand::RunWith(const std::function<void()>& person) {
    RunToTheProgramsEnd(person);
    PumpQueue();
    EXPECT_TRUE(IsWindowEnabled(main_));
    EXPECT_EQ(GetForegroundWindow(), main_);
    EXPECT_EQ(GetFocus(), focusBefore_);
}

int OperationByHand::Files() {
    return files;
}

void OperationByHand::FailNextCopy(DWORD code) {
    nextFailure = code;
}

void OperationByHand::AwaitFiles(int more) {
    const int wanted = files + more;
    WaitUntil("more files to be handled", [wanted] { return files >= wanted; });
}

// No bytes are copied: there are no files to be found in "d" later on.
BOOL OperationByHand::Copy(const wchar_t*, const wchar_t*, BOOL) {
    present->MeetFile();
    const DWORD failure = nextFailure.exchange(0);
    SetLastError(failure);
    return failure == 0;
}

BOOL OperationByHand::Delete(const wchar_t* path) {
    present->MeetFile();
    return present->deletion_.Original()(path);
}

BOOL OperationByHand::RemoveFolder(const wchar_t* path) {
    present->MeetFile();
    return present->removal_.Original()(path);
}

void OperationByHand::MeetFile() {
    ++files;
    if (fault_.empty()) fault_ = Fault();
    if (atFile_) atFile_();
    Sleep(TimeOfFile);
}

// What is wrong with the windows now; empty if nothing is.
std::string OperationByHand::Fault() {
    if (IsWindowEnabled(main_)) return "the main window is enabled in the middle of the run";
    if (!IsWindowEnabled(Progress())) return "the progress dialog is disabled";
    if (GetActiveWindow() != Progress()) return "the progress dialog is not active";
    if (GetForegroundWindow() != Progress()) return "the progress dialog is not in front";
    if (!IsAboveMain(Progress())) return "the progress dialog lies behind the main window";
    if (GetFocus() != Stop()) return "Stop does not have the focus";
    return "";
}

bool OperationByHand::IsAboveMain(HWND dialog) const {
    for (HWND above = GetWindow(main_, GW_HWNDPREV); above != nullptr;
         above = GetWindow(above, GW_HWNDPREV)) {
        if (above == dialog) return true;
    }
    return false;
}

LRESULT CALLBACK OperationByHand::WatchInput(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && IsInput(message.message) && present != nullptr &&
        present->Window().Operation().IsRunning()) {
        const HWND root = GetAncestor(message.hwnd, GA_ROOT);
        if (root == present->main_ || !IsWindowEnabled(root)) ++present->inputBehind_;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

HWND OperationByHand::AwaitProgress() {
    WaitUntil("the progress dialog in front with the focus on Stop", [this] {
        const State now = StateNow();
        return Progress() != nullptr && FindBox() == nullptr && now.foreground == Progress() &&
               now.focus == Stop() && !IsWindowEnabled(main_);
    });
    return Progress();
}

HWND OperationByHand::FindBox() {
    BoxSearch search{Progress()};
    EnumThreadWindows(GetWindowThreadProcessId(main_, nullptr), TakeBox, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND OperationByHand::AwaitBox() {
    HWND box = nullptr;
    WaitUntil("a question or an error box in front, and no window behind it enabled", [&] {
        box = FindBox();
        const State now = StateNow();
        return box != nullptr && now.foreground == box && IsChild(box, now.focus) &&
               !IsWindowEnabled(main_) && !IsWindowEnabled(Progress());
    });
    return box;
}

void OperationByHand::AwaitNoBox(HWND box) {
    WaitUntil("the question or error box to close", [box] { return !IsWindow(box); });
}

void OperationByHand::AnswerByPointer(HWND question, int button) {
    ClickAt(MiddleOf(GetDlgItem(question, button)));
    AwaitNoBox(question);
}

void OperationByHand::AnswerByKeys(HWND question, int button) {
    const HWND control = GetDlgItem(question, button);
    if (control == nullptr) {
        PressKey(VK_ESCAPE);
    } else {
        WaitUntil("Tab to reach the button", [&] {
            if (StateNow().focus != control) PressKey(VK_TAB);
            return HoldsWithin(200, [&] { return StateNow().focus == control; });
        });
        PressKey(VK_SPACE);
    }
    AwaitNoBox(question);
}

void OperationByHand::ClickBehind() {
    for (const HWND behind : {Tab(), Page(NamePageIndex), Item(NamePageIndex, BUTTON_BROWSE), List()}) {
        RECT place{};
        GetWindowRect(behind, &place);
        for (const POINT point : {POINT{place.left + 4, place.top + 4}, POINT{place.right - 5, place.top + 4},
                                  POINT{place.left + 4, place.bottom - 5}}) {
            if (GetAncestor(WindowFromPoint(point), GA_ROOT) == main_) ClickAt(point);
        }
    }
}

bool OperationByHand::AreSettingsSaved() {
    DWORD value = 0;
    return ReadRegistryDword(HKEY_CURRENT_USER, ProductRegistryKey, L"Sub Folder", value) == ERROR_SUCCESS;
}

POINT MiddleOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

POINT CancelOf(HWND dialog) {
    const HWND bar = FindWindowExW(dialog, nullptr, L"QuorinMenuBar", nullptr);
    const HWND buttons = FindWindowExW(bar, nullptr, TOOLBARCLASSNAMEW, nullptr);
    RECT place{};
    SendMessageW(buttons, TB_GETRECT, IDCANCEL, reinterpret_cast<LPARAM>(&place));
    MapWindowPoints(buttons, nullptr, reinterpret_cast<POINT*>(&place), 2);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}
