#include "platform/ce_shortcuts.h"

#include <shlobj.h>

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <memory>
#include <string>

#include "platform/ce_files.h"
#include "platform/desktop/file_identity.h"
#include "platform/desktop/shell_files.h"
#include "platform/desktop/shell_link_file.h"
#include "platform/desktop/system_path.h"
#include "platform/handles.h"

namespace {

// COM on this thread for as long as an object of it is used.
class ComLibrary {
  public:
    ComLibrary() : ready_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ComLibrary(const ComLibrary&) = delete;
    ComLibrary& operator=(const ComLibrary&) = delete;
    ~ComLibrary() {
        if (ready_) CoUninitialize();
    }

  private:
    bool ready_;
};

struct ComReleaser {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using ComPtr = std::unique_ptr<Interface, ComReleaser>;

ComPtr<IShellLinkW> NewShellLink() {
    IShellLinkW* link = nullptr;
    CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                     reinterpret_cast<void**>(&link));
    return ComPtr<IShellLinkW>(link);
}

ComPtr<IPersistFile> FileOf(IShellLinkW& link) {
    IPersistFile* file = nullptr;
    link.QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    return ComPtr<IPersistFile>(file);
}

bool HasBlank(const std::wstring& text) {
    return text.find_first_of(L" \t") != std::wstring::npos;
}

// What a shortcut file holds at most that is of interest; no target is that long.
std::string FirstBytes(const wchar_t* path) {
    constexpr std::size_t Room = 65536;
    const UniqueStream file(ce::OpenForReading(path));
    if (!file) return {};
    std::string bytes(Room, '\0');
    bytes.resize(std::fread(bytes.data(), 1, Room, file.Get()));
    return bytes;
}

std::wstring FromCodePage(std::string_view bytes) {
    // No character has fewer bytes than units.
    std::wstring text(bytes.size(), L'\0');
    const auto size = static_cast<int>(bytes.size());
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), size)));
    return text;
}

// "NN#target", where NN counts the target's bytes, in the system's code page.
std::wstring TextTarget(const std::string& bytes) {
    char* end = nullptr;
    const unsigned long announced = std::strtoul(bytes.c_str(), &end, 10);
    if (*end != '#' || bytes[0] < '0' || bytes[0] > '9') return {};
    std::string_view target = end + 1;
    // People who write such files by hand announce more than follows, and end the line. A tab is part of it.
    target = target.substr(0, target.find_first_of(std::string_view("\r\n\0", 3)));
    return FromCodePage(target.substr(0, std::min<std::size_t>(announced, target.size())));
}

std::wstring LinkTarget(const std::string& bytes) {
    ShellLinkTarget link;
    if (!ReadShellLinkFile(bytes, &FromCodePage, link)) return {};
    std::wstring target = HasBlank(link.program) ? L'"' + link.program + L'"' : link.program;
    if (!link.arguments.empty()) target += L' ' + link.arguments;
    return target;
}

BOOL GetTarget(const wchar_t* shortcut, wchar_t* target, int capacity) {
    if (capacity <= 0) return FALSE;
    target[0] = L'\0';
    const std::string bytes = FirstBytes(shortcut);
    std::wstring text = TextTarget(bytes);
    if (text.empty()) text = LinkTarget(bytes);
    if (text.empty() || text.size() >= static_cast<std::size_t>(capacity)) return FALSE;
    std::wmemcpy(target, text.c_str(), text.size() + 1);
    return TRUE;
}

struct CommandLine {
    std::wstring program;
    std::wstring arguments;
};

CommandLine Split(const wchar_t* target) {
    std::wstring text = target;
    const bool quoted = !text.empty() && text[0] == L'"';
    const std::size_t end = quoted ? text.find(L'"', 1) : text.find_first_of(L" \t");
    CommandLine parts;
    parts.program = quoted ? text.substr(1, end == std::wstring::npos ? end : end - 1) : text.substr(0, end);
    if (end != std::wstring::npos) {
        const std::size_t rest = text.find_first_not_of(L" \t", end + 1);
        if (rest != std::wstring::npos) parts.arguments = text.substr(rest);
    }
    return parts;
}

// Through a link to a file, that file would be written.
bool SaveAs(IPersistFile& file, const wchar_t* shortcut) {
    if (LeadsToAnotherFile(shortcut)) return false;
    if (ShellTakesPath(shortcut)) return SUCCEEDED(file.Save(shortcut, TRUE));
    const SystemPath literal(shortcut);
    return literal.Fits() && SUCCEEDED(file.Save(literal.Text(), TRUE));
}

BOOL CreateShortcut(const wchar_t* shortcut, const wchar_t* target) {
    const ComLibrary library;
    const ComPtr<IShellLinkW> link = NewShellLink();
    if (link == nullptr) return FALSE;
    const CommandLine parts = Split(target);
    // The desktop's links need the drive as well.
    wchar_t program[MAX_PATH];
    if (parts.program.empty() || !FindShellPath(parts.program.c_str(), program)) return FALSE;
    if (FAILED(link->SetPath(program)) || FAILED(link->SetArguments(parts.arguments.c_str()))) return FALSE;
    const ComPtr<IPersistFile> file = FileOf(*link);
    return file != nullptr && SaveAs(*file, shortcut);
}

// By its short path where its own leads the shell elsewhere, or not at all.
BOOL Execute(SHELLEXECUTEINFOW* info) {
    if (info->lpFile == nullptr || ShellTakesPath(info->lpFile)) return ShellExecution(info);
    wchar_t file[MAX_PATH];
    if (!FindShellPath(info->lpFile, file)) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return FALSE;
    }
    SHELLEXECUTEINFOW found = *info;
    found.lpFile = file;
    const BOOL executed = ShellExecution(&found);
    info->hInstApp = found.hInstApp;
    info->hProcess = found.hProcess;
    return executed;
}

}  // namespace

ce::ShortcutCalls ce::shortcutCalls = {GetTarget, CreateShortcut, Execute};
