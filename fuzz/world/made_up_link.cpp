#include "made_up_link.h"

#include <shlobj.h>

#include <cwchar>

#include "platform/desktop/file_identity.h"
#include "platform/desktop/shell_files.h"
#include "platform/desktop/system_path.h"

MadeUpLink& TheLink() {
    static MadeUpLink link;
    return link;
}

HRESULT IPersistFile::Save(const wchar_t*, BOOL) {
    TheLink().saved = true;
    return 0;
}
HRESULT IShellLinkW::QueryInterface(REFIID, void** file) {
    static IPersistFile theFile;
    *file = &theFile;
    return 0;
}
HRESULT IShellLinkW::SetPath(const wchar_t* path) {
    TheLink().program = path;
    return 0;
}
HRESULT IShellLinkW::SetArguments(const wchar_t* arguments) {
    TheLink().arguments = arguments;
    return 0;
}
HRESULT CoCreateInstance(REFIID, IUnknown*, DWORD, REFIID, void** object) {
    static IShellLinkW theObject;
    *object = &theObject;
    return 0;
}

// The paths of this system mean what they say.
bool LeadsToAnotherFile(const wchar_t*) {
    return false;
}
bool ShellTakesPath(const wchar_t*) {
    return true;
}
bool FindShellPath(const wchar_t* path, wchar_t (&found)[MAX_PATH]) {
    if (std::wcslen(path) >= MAX_PATH) return false;
    std::wcscpy(found, path);
    return true;
}
SystemPath::SystemPath(const wchar_t* path) : fits_(LiteralPath(text_, path, L"D:\\")) {}
BOOL ShellExecution(SHELLEXECUTEINFOW*) {
    return FALSE;
}
