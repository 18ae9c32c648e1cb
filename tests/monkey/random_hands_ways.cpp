// Whole ways of a person through the program: without them the hands would seldom get deep into it.

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/monkey/random_hands.h"
#include "tests/support/user_input.h"
#include "tests/support/utf8.h"

namespace {

constexpr DWORD TimeToOpen = 80;
constexpr DWORD TimeToSettle = 150;
constexpr DWORD LongestRest = 60000;

constexpr int Answers[] = {IDYES, IDYES, IDNO, IDOK, IDOK, IDCANCEL, IDRETRY};

bool HasClass(HWND window, const wchar_t* wanted) {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    return lstrcmpW(name, wanted) == 0;
}

bool IsDialog(HWND window) {
    return HasClass(window, L"#32770");
}

bool IsMenu(HWND window) {
    return HasClass(window, L"#32768");
}

}  // namespace

void RandomHands::SendCommand(HWND window, UINT command, UINT code) {
    ++figures_.commands;
    Note("command " + std::to_string(command) + (code != 0 ? " code " + std::to_string(code) : ""));
    PostMessageW(window, WM_COMMAND, MAKEWPARAM(command, code), 0);
}

void RandomHands::Search(Random& random) {
    if (random.Chance(50)) {
        SendCommand(program_.Window(), COMMAND_FIND);
    } else {
        Press(VK_RETURN);
    }
    if (random.Chance(30)) return;
    Sleep(static_cast<DWORD>(random.Below(60)));
    if (random.Chance(40)) Press(random.Chance(50) ? VK_ESCAPE : VK_RETURN);
    if (random.Chance(10)) LeaveDialog(random);
}

// By the controls' messages, so that what is looked for is there to be found.
void RandomHands::FillAndSearch(Random& random) {
    if (!IsWindowEnabled(program_.Window())) return;
    const std::wstring names[] = {L"", L"", L"*", L"a", L"*.qsa", L"note", RandomWord(random)};
    const std::wstring texts[] = {L"", L"", L"", L"abc", L"line", RandomWord(random)};
    NameConditions conditions;
    conditions.name = random.Of(names);
    conditions.contains = random.Of(texts);
    conditions.location = random.Chance(85) ? random.Of(Device::Folders()) : RandomWord(random);
    conditions.subFolders = random.Chance(40);
    program_.Fill(conditions);
    Search(random);
}

// By pointer and keys, or by a message where the row matters more than the way to it.
void RandomHands::ChooseRow(Random& random) {
    const HWND list = List();
    if (list == nullptr || random.Chance(30)) return WalkList(random);
    const auto rows = static_cast<std::size_t>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    if (rows == 0) return FillAndSearch(random);
    const int row = random.Below(rows);
    Note("row " + std::to_string(row));
    SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    program_.SelectRow(row);
}

void RandomHands::Delete(Random& random) {
    ChooseRow(random);
    SendCommand(program_.Window(), COMMAND_DELETE);
    Sleep(TimeToOpen);
    if (random.Chance(75)) return Press('Y');
    if (random.Chance(40)) Press(random.Chance(50) ? 'N' : VK_ESCAPE);
}

void RandomHands::Rename(Random& random) {
    if (random.Chance(70)) ChooseRow(random);
    SendCommand(program_.Window(), COMMAND_RENAME);
    Sleep(TimeToOpen);
    TypeWord(random.Chance(70) ? RandomName(random) : RandomWord(random));
    if (random.Chance(70)) Press(random.Chance(80) ? VK_RETURN : VK_ESCAPE);
    if (random.Chance(30)) ClickOn(AnyPoint(random), MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

void RandomHands::ShowProperties(Random& random) {
    ChooseRow(random);
    SendCommand(program_.Window(), COMMAND_PROPERTIES);
    Sleep(2 * TimeToOpen);
    for (int step = random.Below(4); step > 0; --step) {
        ClickControl(random);
        Sleep(20);
    }
    if (random.Chance(20)) Press(VK_TAB, {VK_CONTROL});
    if (random.Chance(70)) Press(random.Chance(50) ? VK_RETURN : VK_ESCAPE);
}

void RandomHands::Browse(Random& random) {
    SendCommand(GetParent(program_.ControlWindow(NamePage, BUTTON_BROWSE)), BUTTON_BROWSE);
    Sleep(TimeToOpen);
    constexpr WORD Steps[] = {VK_DOWN, VK_RIGHT, VK_UP, VK_LEFT, VK_ADD, VK_MULTIPLY};
    for (int step = random.Between(1, 8); step > 0; --step)
        Press(random.Of(Steps));
    if (random.Chance(70)) Press(random.Chance(70) ? VK_RETURN : VK_ESCAPE);
}

void RandomHands::ShowAbout(Random& random) {
    Press(VK_F1);
    Sleep(TimeToOpen);
    // Now and then with its button Uninstall.
    if (random.Chance(10)) SendCommand(Front(), BUTTON_UNINSTALL);
    if (random.Chance(70)) Press(VK_ESCAPE);
}

void RandomHands::Answer(Random& random) {
    const HWND front = Front();
    if (IsDialog(front)) SendCommand(front, static_cast<UINT>(random.Of(Answers)));
}

void RandomHands::LeaveDialog(Random& random) {
    const HWND front = Front();
    if (!IsDialog(front)) return;
    if (random.Chance(50)) {
        Press(VK_ESCAPE);
    } else {
        ++figures_.messages;
        Note("close the dialog");
        PostMessageW(front, WM_CLOSE, 0, 0);
    }
}

// The shell's own boxes may have no owner: the main window takes input behind them.
std::vector<HWND> RandomHands::OpenDialogs() const {
    std::vector<HWND> open;
    for (const HWND window : TopWindows()) {
        const bool isOwn = window == program_.Window();
        if (!isOwn && IsWindowEnabled(window) && (IsDialog(window) || IsMenu(window))) open.push_back(window);
    }
    return open;
}

// Looked at twice: input that is still on its way comes after what was posted.
bool RandomHands::IsAtRest() {
    const HWND window = program_.Window();
    for (int look = 0; look < 2; ++look) {
        if (!OpenDialogs().empty() || !IsWindowEnabled(window)) return false;
        if (IsIconic(window) || !IsWindowVisible(window)) ShowWindowAsync(window, SW_RESTORE);
        program_.WaitForQueue();
        Sleep(TimeToSettle);
    }
    return OpenDialogs().empty() && IsWindowEnabled(window) && IsWindowVisible(window);
}

// In one of several ways, since a dialog that has lost its buttons does not know them all.
void RandomHands::Leave(HWND dialog, int attempt) {
    if (dialog == nullptr || !IsDialog(dialog) || attempt % 4 == 3) return StrikeKey(VK_ESCAPE);
    if (attempt % 4 == 0) PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    if (attempt % 4 == 1) PostMessageW(dialog, WM_CLOSE, 0, 0);
    if (attempt % 4 == 2) PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

bool RandomHands::Rest() {
    int attempt = 0;
    return HoldsWithin(LongestRest, [&] {
        if (!program_.IsRunning() || !IsWindow(program_.Window())) return true;
        if (IsAtRest()) return true;
        ComeForward();
        // The front one may wait for one behind it, which was opened later.
        const std::vector<HWND> open = OpenDialogs();
        for (const HWND dialog : open)
            Leave(dialog, attempt);
        if (open.empty()) Leave(nullptr, attempt);
        ++attempt;
        Sleep(TimeToOpen);
        return false;
    });
}

std::string RandomHands::Scene() const {
    std::string scene;
    for (const HWND window : TopWindows()) {
        wchar_t name[64] = L"";
        wchar_t caption[64] = L"";
        GetClassNameW(window, name, 64);
        GetWindowTextW(window, caption, 64);
        scene +=
            Utf8(name) + " '" + Utf8(caption) + "'" + (IsWindowEnabled(window) ? "" : " disabled") + "; ";
    }
    return scene;
}
