#include "tests/hands/refusing_program.h"

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"
#include "tests/support/deadline.h"
#include "tests/support/user_input.h"

namespace {

constexpr UINT LongestAnswer = 5000;

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

std::wstring CaptionOf(HWND window) {
    wchar_t caption[64] = L"";
    GetWindowTextW(window, caption, 64);
    return caption;
}

struct DialogSearch {
    DWORD processId;
    HWND found;
};

BOOL CALLBACK TakeDialog(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<DialogSearch*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner != search.processId || ClassOf(window) != L"#32770") return TRUE;
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    search.found = window;
    return FALSE;
}

struct PageSearch {
    int control;
    HWND found;
};

BOOL CALLBACK TakePage(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<PageSearch*>(parameter);
    if (ClassOf(window) != L"#32770" || GetDlgItem(window, search.control) == nullptr) return TRUE;
    search.found = window;
    return FALSE;
}

}  // namespace

RefusingProgram::RefusingProgram() {
    const std::wstring name = L"Local\\QuorinRefusals-" + std::to_wstring(GetCurrentProcessId());
    section_ = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(probe::Refusals),
                                  name.c_str());
    refusals_ = static_cast<probe::Refusals*>(
        MapViewOfFile(section_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(probe::Refusals)));
    if (refusals_ == nullptr) throw DriverError("there is no section for the refusals");
    refusals_->ownerId = GetCurrentProcessId();
    SetEnvironmentVariableW(probe::RefusalsVariable, name.c_str());
}

RefusingProgram::~RefusingProgram() {
    if (process_ != nullptr) process_->Kill();
    SetEnvironmentVariableW(probe::RefusalsVariable, nullptr);
    UnmapViewOfFile(refusals_);
    CloseHandle(section_);
}

void RefusingProgram::Refuse(LONG number) {
    refusals_->refused = 0;
    refusals_->asked = 0;
    refusals_->name[0] = L'\0';
    refusals_->refused = number;
}

void RefusingProgram::RefuseMemory(LONG divisor, LONG remainder) {
    refusals_->divisor = 0;
    refusals_->piecesAsked = 0;
    refusals_->remainder = remainder;
    refusals_->divisor = divisor;
}

// The number goes last: the program may make a call in the middle of this.
void RefusingProgram::RefuseCall(LONG call, LONG place, DWORD code, LONG most) {
    probe::RefusedCall& refused = refusals_->refusedCall;
    refused.most = 0;
    refused.times = 0;
    refused.call = call;
    refused.place = place;
    refused.code = code;
    refused.most = most;
}

void RefusingProgram::NoteCalls(LONG step) {
    refusals_->callPlaces.step = step;
}

std::vector<probe::CallPlace> RefusingProgram::CallsNoted() const {
    const probe::CallPlaces& noted = refusals_->callPlaces;
    if (noted.isFull) throw DriverError("there is no room for all places of calls");
    return {noted.places, noted.places + noted.count};
}

void RefusingProgram::Start(const std::wstring& workingFolder) {
    Launch(workingFolder);
    Settle();
}

void RefusingProgram::Launch(const std::wstring& workingFolder) {
    if (process_ != nullptr) process_->Kill();
    link_.reset();
    hasComplained_ = false;
    ProgramStart start;
    start.path = ProgramPath();
    start.workingFolder = workingFolder;
    start.probePath = ProbePath();
    process_ = std::make_unique<RunningProgram>();
    process_->Start(start);
}

void RefusingProgram::Settle() {
    WaitUntil("the program to wait for commands or to end", [this] {
        if (!process_->IsRunning()) return true;
        if (const HWND box = OpenDialog()) {
            // A search ends by itself.
            if (GetDlgItem(box, STATIC_FOLDER) == nullptr) Answer(box);
            return false;
        }
        const HWND window = Window();
        if (window == nullptr || !IsWindowVisible(window) || !IsWindowEnabled(window)) return false;
        if (!Connects() || !TakesMessages()) return false;
        return OpenDialog() == nullptr && IsWindowEnabled(window) != FALSE;
    });
}

// A window that is just going under takes no hooks.
bool RefusingProgram::Connects() {
    if (link_ != nullptr) return true;
    try {
        link_ = std::make_unique<ProbeLink>(Window());
    } catch (const DriverError&) {
        return false;
    }
    return true;
}

// One whose end has begun takes no more messages.
bool RefusingProgram::TakesMessages() {
    try {
        WaitForQueue();
    } catch (const DriverError&) {
        return false;
    }
    return true;
}

void RefusingProgram::WaitForQueue() {
    link_->WaitForQueue();
}

void RefusingProgram::Answer(HWND box) {
    hasComplained_ = hasComplained_ || CaptionOf(box) == Shown(L"Fatal", L"致命的なｴﾗｰ");
    if (GetForegroundWindow() != box) SetForegroundWindow(box);
    PressKey(VK_RETURN);
    static_cast<void>(HoldsWithin(LongestAnswer, [&] { return !IsWindow(box) || !IsWindowVisible(box); }));
}

DWORD RefusingProgram::Close() {
    PostMessageW(Window(), WM_CLOSE, 0, 0);
    return ExitCode();
}

DWORD RefusingProgram::ExitCode() const {
    const std::optional<DWORD> code = process_->ExitCode(StepDeadline);
    if (!code) throw DriverError("the program does not end");
    return *code;
}

HWND RefusingProgram::Child(const wchar_t* className) const {
    return Window() != nullptr ? FindWindowExW(Window(), nullptr, className, nullptr) : nullptr;
}

HWND RefusingProgram::PageWith(int control) const {
    PageSearch search = {control, nullptr};
    if (Window() != nullptr) EnumChildWindows(Window(), TakePage, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND RefusingProgram::Control(int control) const {
    const HWND page = PageWith(control);
    return page != nullptr ? GetDlgItem(page, control) : nullptr;
}

HWND RefusingProgram::OpenDialog() const {
    DialogSearch search = {process_->ProcessId(), nullptr};
    EnumWindows(TakeDialog, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void RefusingProgram::Run(UINT command) {
    PostMessageW(Window(), WM_COMMAND, command, 0);
    Settle();
}

std::vector<std::wstring> RefusingProgram::NamesOfRows() {
    constexpr int MostRows = 100;
    std::vector<std::wstring> names;
    for (const Record& row : link_->Ask(probe::Question::Rows, 0, MostRows))
        names.push_back(row.front());
    return names;
}
