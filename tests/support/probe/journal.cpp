#include "tests/support/probe/journal.h"

#include <commctrl.h>
#include <prsht.h>

#include <cstdio>
#include <string>

#include "resources/resource_ids.h"
#include "tests/support/probe/imported_calls.h"
#include "tests/support/probe/program_windows.h"

namespace probe {
namespace {

Journal* journal = nullptr;
HANDLE journalMutex = nullptr;

class Turn {
  public:
    Turn() { WaitForSingleObject(journalMutex, INFINITE); }
    ~Turn() { ReleaseMutex(journalMutex); }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
};

void Note(std::initializer_list<std::wstring_view> fields) {
    const Turn turn;
    AppendTo(*journal, fields);
}

// The program's calls

// The program reads the error after the call: noting it must leave that alone.
template <typename Call>
BOOL NoteCall(std::initializer_list<std::wstring_view> fields, Call call) {
    const Turn turn;
    const BOOL done = call();
    const DWORD error = GetLastError();
    const std::wstring_view* field = fields.begin();
    const std::wstring_view outcome = done ? L"1" : L"0";
    if (fields.size() == 2) AppendTo(*journal, {field[0], field[1], outcome});
    if (fields.size() == 3) AppendTo(*journal, {field[0], field[1], field[2], outcome});
    SetLastError(error);
    return done;
}

BOOL WINAPI DeleteNoted(const wchar_t* path) {
    return NoteCall({L"delete", path}, [&] { return DeleteFileW(path); });
}

BOOL WINAPI MoveNoted(const wchar_t* from, const wchar_t* to) {
    return NoteCall({L"move", from, to}, [&] { return MoveFileW(from, to); });
}

BOOL WINAPI SetAttributesNoted(const wchar_t* path, DWORD attributes) {
    return NoteCall({L"attributes", path, std::to_wstring(attributes)},
                    [&] { return SetFileAttributesW(path, attributes); });
}

BOOL WINAPI CopyNoted(const wchar_t* from, const wchar_t* to, BOOL failIfExists) {
    return NoteCall({L"other", L"CopyFileW", to}, [&] { return CopyFileW(from, to, failIfExists); });
}

BOOL WINAPI CreateFolderNoted(const wchar_t* path, SECURITY_ATTRIBUTES* security) {
    return NoteCall({L"other", L"CreateDirectoryW", path}, [&] { return CreateDirectoryW(path, security); });
}

BOOL WINAPI RemoveFolderNoted(const wchar_t* path) {
    return NoteCall({L"other", L"RemoveDirectoryW", path}, [&] { return RemoveDirectoryW(path); });
}

// Places in the program are told from its beginning, as in its map.
std::wstring PlaceInProgram(const void* address) {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<const wchar_t*>(address), &module);
    wchar_t path[MAX_PATH] = L"";
    if (module != nullptr) GetModuleFileNameW(module, path, MAX_PATH);
    const wchar_t* const separator = wcsrchr(path, L'\\');
    wchar_t text[MAX_PATH + 32];
    _snwprintf(text, MAX_PATH + 31, L"%ls+%llx", separator != nullptr ? separator + 1 : L"?",
               static_cast<unsigned long long>(reinterpret_cast<const BYTE*>(address) -
                                               reinterpret_cast<const BYTE*>(module)));
    text[MAX_PATH + 31] = L'\0';
    return text;
}

bool IsCrash(DWORD code) {
    return code == EXCEPTION_ACCESS_VIOLATION || code == EXCEPTION_ILLEGAL_INSTRUCTION ||
           code == EXCEPTION_STACK_OVERFLOW || code == EXCEPTION_INT_DIVIDE_BY_ZERO || code == 0xC0000374;
}

// Some of the system's own routines try an address and take the exception back: it is noted, no more.
LONG CALLBACK NoteFault(EXCEPTION_POINTERS* fault) {
    constexpr ULONG Depth = 24;
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    if (!IsCrash(record.ExceptionCode)) return EXCEPTION_CONTINUE_SEARCH;
    wchar_t code[16];
    _snwprintf(code, 16, L"%lx at ", record.ExceptionCode);
    std::wstring text = code + PlaceInProgram(record.ExceptionAddress);
    void* frames[Depth] = {};
    const USHORT count = RtlCaptureStackBackTrace(0, Depth, frames, nullptr);
    for (USHORT frame = 0; frame < count; ++frame)
        text += L" < " + PlaceInProgram(frames[frame]);
    Note({L"fault", text});
    return EXCEPTION_CONTINUE_SEARCH;
}

template <typename Call>
void Replace(const char* name, Call replacement) {
    ReplaceImportedCall(name, reinterpret_cast<void*>(replacement));
}

void ReplaceFileCalls() {
    Replace("DeleteFileW", &DeleteNoted);
    Replace("MoveFileW", &MoveNoted);
    Replace("SetFileAttributesW", &SetAttributesNoted);
    Replace("CopyFileW", &CopyNoted);
    Replace("CreateDirectoryW", &CreateFolderNoted);
    Replace("RemoveDirectoryW", &RemoveFolderNoted);
}

// What the program is asked

constexpr int TextCapacity = 1024;

// The one that was asked last.
HWND question = nullptr;

std::wstring CellText(int row, int column) {
    wchar_t text[TextCapacity] = L"";
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = TextCapacity;
    SendMessageW(ListWindow(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

std::wstring RowPath(int row) {
    if (row < 0) return {};
    const std::wstring folder = CellText(row, 1);
    const bool separated = folder.empty() || folder.back() == L'\\';
    return folder + (separated ? L"" : L"\\") + CellText(row, 0);
}

std::wstring SelectedPath() {
    constexpr WPARAM FromTheStart = static_cast<WPARAM>(-1);
    return RowPath(
        static_cast<int>(SendMessageW(ListWindow(), LVM_GETNEXTITEM, FromTheStart, LVNI_SELECTED)));
}

bool Has(HWND dialog, int control) {
    return GetDlgItem(dialog, control) != nullptr;
}

bool IsQuestion(HWND dialog) {
    return Has(dialog, STATIC_QUESTION) && Has(dialog, IDYES);
}

// Pages of a properties sheet among them.
void NoteDialog(HWND dialog) {
    if (IsQuestion(dialog)) {
        question = dialog;
        Note({L"dialog", L"question", SelectedPath()});
    } else if (Has(dialog, CHECK_HIDDEN)) {
        Note({L"dialog", L"general", SelectedPath()});
    } else if (Has(dialog, STATIC_TARGET_TYPE) && Has(dialog, EDIT_TARGET)) {
        Note({L"dialog", L"shortcut", SelectedPath()});
    }
}

// One that has lost its text shows none.
void NoteYes(HWND dialog) {
    wchar_t text[TextCapacity] = L"";
    if (!Has(dialog, STATIC_QUESTION)) return Note({L"yes", L"?"});
    GetDlgItemTextW(dialog, STATIC_QUESTION, text, TextCapacity);
    Note({L"yes", text});
}

void NoteCommand(HWND window, UINT command) {
    if (window == MainWindow()) {
        if (command == COMMAND_EXIT) Note({L"exit"});
        if (command == COMMAND_FIND) Note({L"search"});
        if (command == COMMAND_ADD_TO_START_MENU) Note({L"start-menu", SelectedPath()});
    } else if (command == IDYES && window == question) {
        NoteYes(window);
    } else if (command == BUTTON_UNINSTALL && Has(window, STATIC_PROGRAM_MEMORY)) {
        Note({L"uninstall"});
    }
}

// The list gives no text where the editing was given up, nor where the name is as it was.
void NoteEndOfEditing(const wchar_t* text) {
    if (text != nullptr) return Note({L"end-edit", text});
    wchar_t left[TextCapacity] = L"";
    const auto edit = reinterpret_cast<HWND>(SendMessageW(ListWindow(), LVM_GETEDITCONTROL, 0, 0));
    if (edit != nullptr) GetWindowTextW(edit, left, TextCapacity);
    Note({L"end-edit-unchanged", left});
}

void NoteNotification(const NMHDR& header) {
    const int code = static_cast<int>(header.code);
    if (code == static_cast<int>(PSN_APPLY)) Note({L"apply"});
    if (header.hwndFrom != ListWindow()) return;
    const auto& item = reinterpret_cast<const NMLVDISPINFOW&>(header).item;
    if (code == static_cast<int>(LVN_BEGINLABELEDITW)) Note({L"begin-edit", RowPath(item.iItem)});
    if (code == static_cast<int>(LVN_ENDLABELEDITW)) NoteEndOfEditing(item.pszText);
}

}  // namespace

void NoteMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (journal == nullptr) return;
    if (message == WM_INITDIALOG) NoteDialog(window);
    if (message == WM_COMMAND) NoteCommand(window, LOWORD(wParam));
    if (message == WM_NOTIFY && lParam != 0) NoteNotification(*reinterpret_cast<const NMHDR*>(lParam));
    const bool closes = message == WM_SYSCOMMAND && (wParam & 0xFFF0u) == SC_CLOSE;
    const bool ends = message == WM_ENDSESSION && wParam != FALSE;
    if ((closes || ends) && window == MainWindow()) Note({L"exit"});
    if (message == WM_CLOSE && window == MainWindow()) Note({L"close"});
}

void PrepareJournal() {
    wchar_t name[MAX_PATH] = L"";
    if (GetEnvironmentVariableW(JournalVariable, name, MAX_PATH) == 0) return;
    const HANDLE section = OpenFileMappingW(FILE_MAP_ALL_ACCESS, FALSE, name);
    if (section == nullptr) return;
    journal = static_cast<Journal*>(MapViewOfFile(section, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Journal)));
    CloseHandle(section);
    if (journal == nullptr || journal->ownerId == GetCurrentProcessId()) {
        journal = nullptr;
        return;
    }
    journalMutex = CreateMutexW(nullptr, FALSE, (std::wstring(name) + JournalMutexSuffix).c_str());
    ReplaceFileCalls();
    AddVectoredExceptionHandler(0, NoteFault);
}

}  // namespace probe
