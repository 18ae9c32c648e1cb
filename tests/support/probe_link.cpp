#include "tests/support/probe_link.h"

#include "tests/support/deadline.h"
#include "tests/support/driver_error.h"

namespace {

constexpr DWORD PauseBetweenLooks = 100;

std::wstring OwnFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring text = path;
    return text.substr(0, text.find_last_of(L'\\') + 1);
}

HMODULE LoadProbe() {
    const HMODULE library = LoadLibraryW(ProbePath().c_str());
    if (library == nullptr) throw DriverError("quorin_probe.dll cannot be loaded");
    return library;
}

HHOOK InstallHook(int kind, HMODULE library, const char* procedure, DWORD thread) {
    const auto address = reinterpret_cast<HOOKPROC>(GetProcAddress(library, procedure));
    return address == nullptr ? nullptr : SetWindowsHookExW(kind, address, library, thread);
}

std::vector<Record> SplitAnswer(const probe::Exchange& exchange) {
    std::vector<Record> records;
    Record record;
    std::wstring field;
    for (DWORD i = 0; i < exchange.length; ++i) {
        const wchar_t unit = exchange.answer[i];
        if (unit == probe::FieldEnd) {
            record.push_back(field);
            field.clear();
        } else if (unit == probe::RecordEnd) {
            records.push_back(record);
            record.clear();
        } else {
            field += unit;
        }
    }
    return records;
}

}  // namespace

std::wstring ProbePath() {
    const std::wstring folder = OwnFolder();
    for (const wchar_t* place : {L"quorin_probe.dll", L"tests\\quorin_probe.dll"}) {
        const std::wstring path = folder + place;
        if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) return path;
    }
    throw DriverError("quorin_probe.dll is neither beside the driver nor in tests");
}

ProbeLink::ProbeLink(HWND mainWindow) : window_(mainWindow) {
    const DWORD thread = GetWindowThreadProcessId(window_, &processId_);
    if (thread == 0) throw DriverError("the main window is gone");
    wchar_t name[64];
    wsprintfW(name, probe::SectionNameFormat, processId_);
    section_ =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(probe::Exchange), name);
    void* view = section_ == nullptr ? nullptr : MapViewOfFile(section_, FILE_MAP_ALL_ACCESS, 0, 0, 0);
    exchange_ = static_cast<probe::Exchange*>(view);
    try {
        library_ = LoadProbe();
    } catch (...) {
        Close();
        throw;
    }
    sentHook_ = InstallHook(WH_CALLWNDPROC, library_, "ProbeSentMessage", thread);
    takenHook_ = InstallHook(WH_GETMESSAGE, library_, "ProbeTakenMessage", thread);
    if (exchange_ == nullptr || sentHook_ == nullptr || takenHook_ == nullptr) {
        Close();
        throw DriverError("the probe could not be brought into the program");
    }
}

ProbeLink::~ProbeLink() {
    Close();
}

void ProbeLink::Close() {
    if (sentHook_ != nullptr) UnhookWindowsHookEx(sentHook_);
    if (takenHook_ != nullptr) UnhookWindowsHookEx(takenHook_);
    if (exchange_ != nullptr) UnmapViewOfFile(exchange_);
    if (section_ != nullptr) CloseHandle(section_);
    if (library_ != nullptr) FreeLibrary(library_);
}

std::vector<Record> ProbeLink::Ask(probe::Question question, int first, int second, int third) {
    exchange_->question = question;
    exchange_->numbers[0] = first;
    exchange_->numbers[1] = second;
    exchange_->numbers[2] = third;
    exchange_->answered = FALSE;
    static const UINT message = RegisterWindowMessageW(probe::QuestionMessageName);
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window_, message, 0, 0, SMTO_NORMAL, StepDeadline, &result);
    const std::string name = "question " + std::to_string(static_cast<DWORD>(question));
    if (!exchange_->answered) throw DriverError("the program did not answer the probe's " + name);
    if (exchange_->truncated) throw DriverError("the probe's answer was too long for " + name);
    return SplitAnswer(*exchange_);
}

HANDLE ProbeLink::NamedEvent(const wchar_t* format) const {
    wchar_t name[64];
    wsprintfW(name, format, processId_);
    return CreateEventW(nullptr, TRUE, FALSE, name);
}

// A message that is lost on the way, as one to a program that has only just got the hooks, is sent again.
void ProbeLink::WaitForQueue() {
    constexpr DWORD OneTry = 2000;
    for (DWORD waited = 0; waited < StepDeadline; waited += OneTry) {
        if (TakesQueue(OneTry)) return;
        if (!IsWindow(window_)) throw DriverError("the window is gone that was to take a message");
    }
    throw DriverError("the program does not take messages from its queue");
}

bool ProbeLink::TakesQueue(DWORD milliseconds) {
    wchar_t name[64];
    wsprintfW(name, probe::SyncEventNameFormat, processId_, ++lastSync_);
    const HANDLE taken = CreateEventW(nullptr, TRUE, FALSE, name);
    PostMessageW(window_, RegisterWindowMessageW(probe::SyncMessageName), lastSync_, 0);
    bool isTaken = false;
    (void)HoldsWithin(milliseconds, [&] {
        isTaken = WaitForSingleObject(taken, PauseBetweenLooks) == WAIT_OBJECT_0;
        return isTaken || !IsWindow(window_);
    });
    CloseHandle(taken);
    return isTaken;
}

bool ProbeLink::WaitForHold(DWORD milliseconds) {
    const HANDLE held = NamedEvent(probe::HeldEventNameFormat);
    const DWORD answer = WaitForSingleObject(held, milliseconds);
    CloseHandle(held);
    return answer == WAIT_OBJECT_0;
}

void ProbeLink::ReleaseHold() {
    const HANDLE release = NamedEvent(probe::ReleaseEventNameFormat);
    SetEvent(release);
    CloseHandle(release);
}
