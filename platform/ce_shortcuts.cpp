#include "platform/ce_shortcuts.h"

#include <shlobj.h>

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <memory>
#include <string>

#include "platform/ce_files.h"

namespace {

// More than any caller has room for, so that what is cut here does not fit there either and is never taken for
// a whole target.
constexpr std::size_t LongestTextShortcut = 4096;

// The library of objects for as long as one is used.
class ObjectLibrary {
  public:
    ObjectLibrary() : ready(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ObjectLibrary() {
        if (ready) CoUninitialize();
    }
    ObjectLibrary(const ObjectLibrary&) = delete;
    ObjectLibrary& operator=(const ObjectLibrary&) = delete;

  private:
    bool ready;
};

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Held = std::unique_ptr<Interface, Releaser>;

Held<IShellLinkW> NewShellLink() {
    IShellLinkW* link = nullptr;
    CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                     reinterpret_cast<void**>(&link));
    return Held<IShellLinkW>(link);
}

Held<IPersistFile> FileOf(IShellLinkW& link) {
    IPersistFile* file = nullptr;
    link.QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    return Held<IPersistFile>(file);
}

bool HasBlank(const std::wstring& text) {
    return text.find_first_of(L" \t") != std::wstring::npos;
}

// "NN#target", where NN counts the target's bytes, in the system's code page.
std::wstring ReadTextShortcut(const wchar_t* path) {
    char bytes[LongestTextShortcut + 1] = "";
    std::FILE* file = ce::OpenForReading(path);
    if (file == nullptr) return {};
    const std::size_t size = std::fread(bytes, 1, LongestTextShortcut, file);
    std::fclose(file);
    bytes[size] = '\0';
    char* end = bytes;
    const unsigned long announced = std::strtoul(bytes, &end, 10);
    if (end == bytes || *end != '#' || bytes[0] < '0' || bytes[0] > '9') return {};
    const std::size_t available = std::strlen(end + 1);
    const auto length = static_cast<int>(announced < available ? announced : available);
    wchar_t target[LongestTextShortcut + 1];
    const int units = MultiByteToWideChar(CP_ACP, 0, end + 1, length, target, LongestTextShortcut);
    return std::wstring(target, static_cast<std::size_t>(units));
}

std::wstring ReadShellLink(const wchar_t* path) {
    const ObjectLibrary library;
    const Held<IShellLinkW> link = NewShellLink();
    if (link == nullptr) return {};
    const Held<IPersistFile> file = FileOf(*link);
    if (file == nullptr || FAILED(file->Load(path, STGM_READ))) return {};
    wchar_t program[MAX_PATH] = L"";
    wchar_t arguments[LongestTextShortcut] = L"";
    if (FAILED(link->GetPath(program, MAX_PATH, nullptr, SLGP_RAWPATH)) || program[0] == L'\0') return {};
    if (FAILED(link->GetArguments(arguments, LongestTextShortcut))) arguments[0] = L'\0';
    std::wstring target = program;
    if (HasBlank(target)) target = L'"' + target + L'"';
    if (arguments[0] != L'\0') target += std::wstring(L" ") + arguments;
    return target;
}

BOOL GetTarget(const wchar_t* shortcut, wchar_t* target, int capacity) {
    if (capacity <= 0) return FALSE;
    target[0] = L'\0';
    std::wstring text = ReadTextShortcut(shortcut);
    if (text.empty()) text = ReadShellLink(shortcut);
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

BOOL CreateShortcut(const wchar_t* shortcut, const wchar_t* target) {
    const ObjectLibrary library;
    const Held<IShellLinkW> link = NewShellLink();
    if (link == nullptr) return FALSE;
    const CommandLine parts = Split(target);
    // The desktop's links need the drive as well.
    wchar_t program[MAX_PATH];
    const DWORD length = GetFullPathNameW(parts.program.c_str(), MAX_PATH, program, nullptr);
    if (length == 0 || length >= MAX_PATH) return FALSE;
    if (FAILED(link->SetPath(program)) || FAILED(link->SetArguments(parts.arguments.c_str()))) return FALSE;
    const Held<IPersistFile> file = FileOf(*link);
    return file != nullptr && SUCCEEDED(file->Save(shortcut, TRUE));
}

BOOL Execute(SHELLEXECUTEINFOW* info) {
    return ::ShellExecuteExW(info);
}

}  // namespace

ce::ShortcutCalls ce::shortcutCalls = {GetTarget, CreateShortcut, Execute};
