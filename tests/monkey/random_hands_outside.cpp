// What other programs and the system do to the program while it is used.

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/monkey/random_hands.h"
#include "tests/program/program_test.h"
#include "tests/support/user_input.h"
#include "tests/support/utf8.h"

namespace {

constexpr UINT Commands[] = {COMMAND_FIND,
                             COMMAND_OPEN,
                             COMMAND_ADD_TO_START_MENU,
                             COMMAND_DELETE,
                             COMMAND_RENAME,
                             COMMAND_PROPERTIES,
                             COMMAND_LARGE_ICON,
                             COMMAND_SMALL_ICON,
                             COMMAND_DETAILS,
                             COMMAND_VIEW_STATUS,
                             COMMAND_CHECK_CASE,
                             COMMAND_SAVE_RESULT,
                             COMMAND_NEW_CONDITION,
                             COMMAND_ABOUT,
                             COMMAND_RUN,
                             COMMAND_VIEW_BAR_FIRST,
                             COMMAND_MENU_FILE,
                             COMMAND_MENU_VIEW,
                             COMMAND_MENU_OPTION,
                             IDOK,
                             IDCANCEL,
                             IDYES,
                             IDNO,
                             BUTTON_YES_TO_ALL,
                             BUTTON_BROWSE,
                             0,
                             0xFFFF};

constexpr UINT Codes[] = {BN_CLICKED,  BN_DOUBLECLICKED, BN_SETFOCUS,   BN_KILLFOCUS,   CBN_SELCHANGE,
                          CBN_DBLCLK,  CBN_SETFOCUS,     CBN_KILLFOCUS, CBN_EDITCHANGE, CBN_DROPDOWN,
                          CBN_CLOSEUP, CBN_SELENDOK,     EN_SETFOCUS,   EN_KILLFOCUS,   EN_CHANGE,
                          EN_UPDATE,   EN_ERRSPACE,      EN_MAXTEXT,    EN_HSCROLL,     0xFFFF};

struct PlainMessage {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
constexpr LPARAM Small = MAKELPARAM(40, 30);
constexpr LPARAM Large = MAKELPARAM(3000, 2000);
constexpr PlainMessage Messages[] = {{WM_SIZE, SIZE_RESTORED, Small},
                                     {WM_SIZE, SIZE_RESTORED, Large},
                                     {WM_SIZE, SIZE_MINIMIZED, 0},
                                     {WM_SIZE, SIZE_MAXIMIZED, 0},
                                     {WM_MOVE, 0, Small},
                                     {WM_SETTINGCHANGE, SPI_SETWORKAREA, 0},
                                     {WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0},
                                     {WM_SETTINGCHANGE, 0, 0},
                                     {WM_SYSCOLORCHANGE, 0, 0},
                                     {WM_FONTCHANGE, 0, 0},
                                     {WM_THEMECHANGED, 0, 0},
                                     {WM_TIMECHANGE, 0, 0},
                                     {WM_DISPLAYCHANGE, 24, Small},
                                     {WM_SYSCOMMAND, SC_MINIMIZE, 0},
                                     {WM_SYSCOMMAND, SC_RESTORE, 0},
                                     {WM_SYSCOMMAND, SC_MAXIMIZE, 0},
                                     {WM_SYSCOMMAND, SC_MOVE, 0},
                                     {WM_SYSCOMMAND, SC_SIZE, 0},
                                     {WM_SYSCOMMAND, SC_KEYMENU, 0},
                                     {WM_SYSCOMMAND, SC_HSCROLL, 0},
                                     {WM_CANCELMODE, 0, 0},
                                     {WM_CAPTURECHANGED, 0, 0},
                                     {WM_ACTIVATE, WA_INACTIVE, 0},
                                     {WM_ACTIVATE, WA_ACTIVE, 0},
                                     {WM_ACTIVATEAPP, FALSE, 0},
                                     {WM_ACTIVATEAPP, TRUE, 0},
                                     {WM_NCACTIVATE, FALSE, 0},
                                     {WM_SETFOCUS, 0, 0},
                                     {WM_KILLFOCUS, 0, 0},
                                     {WM_ENABLE, FALSE, 0},
                                     {WM_ENABLE, TRUE, 0},
                                     {WM_SHOWWINDOW, FALSE, 0},
                                     {WM_SHOWWINDOW, TRUE, 0},
                                     {WM_TIMER, 1, 0},
                                     {WM_TIMER, 2, 0},
                                     {WM_TIMER, 42, 0},
                                     {WM_VSCROLL, SB_LINEDOWN, 0},
                                     {WM_VSCROLL, SB_BOTTOM, 0},
                                     {WM_HSCROLL, SB_LINERIGHT, 0},
                                     {WM_HSCROLL, SB_TOP, 0},
                                     {WM_CONTEXTMENU, 0, Small},
                                     {WM_CHAR, L'x', 1},
                                     {WM_CHAR, L'\t', 1},
                                     {WM_CHAR, 0x65E5, 1},
                                     {WM_SYSCHAR, L'q', 1},
                                     {WM_KEYDOWN, VK_TAB, 1},
                                     {WM_KEYDOWN, VK_RETURN, 1},
                                     {WM_KEYUP, VK_RETURN, 1},
                                     {WM_LBUTTONDOWN, MK_LBUTTON, Small},
                                     {WM_LBUTTONUP, 0, Small},
                                     {WM_MOUSEMOVE, 0, Small},
                                     {WM_MOUSELEAVE, 0, 0},
                                     {WM_NEXTDLGCTL, 0, FALSE},
                                     {WM_INITMENUPOPUP, 0, 0},
                                     {WM_ENTERIDLE, MSGF_DIALOGBOX, 0},
                                     {WM_QUERYENDSESSION, 0, 0},
                                     {WM_ENDSESSION, FALSE, 0},
                                     {WM_PAINT, 0, 0},
                                     {WM_ERASEBKGND, 0, 0},
                                     {WM_SETREDRAW, TRUE, 0},
                                     {WM_QUEUESYNC, 0, 0},
                                     {WM_NULL, 0, 0},
                                     {WM_USER, 0, 0},
                                     {WM_APP, 0, 0}};

// Those that a header alone makes, or an empty rest.
constexpr UINT Notifications[] = {NM_CLICK,           NM_DBLCLK,          NM_RCLICK,       NM_SETFOCUS,
                                  NM_KILLFOCUS,       NM_RETURN,          LVN_COLUMNCLICK, LVN_KEYDOWN,
                                  LVN_ITEMCHANGED,    LVN_DELETEALLITEMS, LVN_BEGINDRAG,   LVN_ENDLABELEDITW,
                                  TCN_SELCHANGE,      TCN_SELCHANGING,    TCN_KEYDOWN,     TVN_SELCHANGEDW,
                                  TVN_ITEMEXPANDINGW, UDN_DELTAPOS,       DTN_CLOSEUP,     DTN_DATETIMECHANGE,
                                  NM_RELEASEDCAPTURE};

constexpr DWORD LongestSecondStart = 30000;

}  // namespace

void RandomHands::PostCommand(Random& random) {
    const HWND window = random.Chance(70) ? program_.Window() : Front();
    SendCommand(window, random.Of(Commands));
}

// As its control would.
void RandomHands::PostToControl(Random& random) {
    const HWND control = AnyWindow(random);
    const HWND parent = GetParent(control);
    if (parent == nullptr) return;
    const auto id = static_cast<UINT>(GetDlgCtrlID(control));
    const UINT code = random.Of(Codes);
    ++figures_.commands;
    Note("command of control " + std::to_string(id) + " code " + std::to_string(code));
    PostMessageW(parent, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}

void RandomHands::PostMessageTo(Random& random) {
    const HWND window = random.Chance(50) ? AnyWindow(random) : Front();
    const PlainMessage& message = random.Of(Messages);
    ++figures_.messages;
    Note("message " + std::to_string(message.message) + " " + std::to_string(message.wParam) + " to " +
         std::to_string(GetDlgCtrlID(window)));
    PostMessageW(window, message.message, message.wParam, message.lParam);
}

void RandomHands::Notify(Random& random) {
    const HWND control = AnyWindow(random);
    if (GetParent(control) == nullptr) return;
    const UINT code = random.Of(Notifications);
    ++figures_.messages;
    Note("notification " + std::to_string(static_cast<int>(code)) + " of " +
         std::to_string(GetDlgCtrlID(control)));
    program_.Notify(control, static_cast<int>(code));
}

void RandomHands::ChangeFiles(Random& random) {
    ++figures_.fileChanges;
    device_.ChangeSomething(random);
}

void RandomHands::ChangeScreen(Random& random) {
    ++figures_.screens;
    screenChanged_ = true;
    RECT area = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    area.top = random.Below(40);
    area.bottom -= random.Below(60);
    area.right -= random.Below(60);
    Note("work area");
    SystemParametersInfoW(SPI_SETWORKAREA, 0, &area, SPIF_SENDCHANGE);
}

void RandomHands::RestoreScreen() {
    if (!screenChanged_) return;
    RECT area = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    SystemParametersInfoW(SPI_SETWORKAREA, 0, &area, SPIF_SENDCHANGE);
    screenChanged_ = false;
}

// The second copy brings the first one forward and ends, unless the first has just gone.
void RandomHands::StartAgain(Random&) {
    ++figures_.starts;
    RunningProgram second;
    ProgramStart start;
    start.path = ProgramPath();
    start.workingFolder = device_.Root();
    second.Start(start);
    const std::optional<DWORD> code = second.ExitCode(LongestSecondStart);
    if (code == 1u || !program_.IsRunning() || !IsWindowEnabled(program_.Window())) return;
    if (!code) throw DriverError("a second copy does not end");
    throw DriverError("a second copy ends with code " + std::to_string(*code));
}

// Seldom, so that most lives come to their own end.
void RandomHands::EndProgram(Random& random) {
    if (random.Chance(60)) return;
    ++figures_.messages;
    journal_.Note({L"own-end"});
    const int kind = random.Below(5);
    Note("end of the program, way " + std::to_string(kind));
    if (kind == 0) Press('Q', {VK_CONTROL});
    if (kind == 1) SendCommand(program_.Window(), COMMAND_EXIT);
    if (kind == 2) PostMessageW(program_.Window(), WM_CLOSE, 0, 0);
    if (kind == 3) PostMessageW(program_.Window(), WM_ENDSESSION, TRUE, 0);
    if (kind == 4) PostThreadMessageW(GetWindowThreadProcessId(program_.Window(), nullptr), WM_QUIT, 0, 0);
}

void RandomHands::DestroyChild(Random& random) {
    const HWND window = AnyWindow(random);
    if (window == program_.Window() || GetParent(window) == nullptr) return;
    ++figures_.destroyed;
    Note("destroy child " + std::to_string(GetDlgCtrlID(window)));
    program_.DestroyWindowOf(window);
}

void RandomHands::DestroyDialog(Random&) {
    const HWND front = Front();
    if (front == program_.Window()) return;
    ++figures_.destroyed;
    Note("destroy the dialog");
    program_.DestroyWindowOf(front);
}
