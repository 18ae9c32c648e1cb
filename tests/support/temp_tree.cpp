#include "tests/support/temp_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

bool IsDotEntry(const std::wstring& name) {
    return name == L"." || name == L"..";
}

// Deletes what the folder holds, and links without what they lead to.
void DeleteTree(const std::wstring& literalFolder) {
    std::vector<WIN32_FIND_DATAW> entries;
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((literalFolder + L"\\*").c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            if (!IsDotEntry(data.cFileName)) entries.push_back(data);
        } while (FindNextFileW(search, &data));
        FindClose(search);
    }
    for (const WIN32_FIND_DATAW& entry : entries) {
        const std::wstring path = literalFolder + L"\\" + entry.cFileName;
        const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        const bool isLink = (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
        if (isFolder && !isLink) {
            DeleteTree(path);
            continue;
        }
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (!DeleteFileW(path.c_str())) RemoveDirectoryW(path.c_str());
    }
    RemoveDirectoryW(literalFolder.c_str());
}

bool IsLink(const std::wstring& literalPath) {
    const DWORD attributes = GetFileAttributesW(literalPath.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

// Under Wine, some things only the host can do, or do in a bearable time. False on any other system.
bool RunHostShell(const std::wstring& folder, const std::wstring& script) {
    std::wstring command = L"sh -c \"" + script + L"\"";
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    // Of a program of the host there are no handles: what Wine writes here is left over from other calls.
    PROCESS_INFORMATION notFilled = {};
    return CreateProcessW(L"\\\\?\\unix\\bin\\sh", command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                          folder.c_str(), &startup, &notFilled);
}

// The host's tools are no processes of Wine's that could be waited for, so what they do is.
template <typename Condition>
bool WaitFor(Condition holds) {
    for (int tries = 0; tries < 6000; ++tries) {
        if (holds()) return true;
        Sleep(10);
    }
    return false;
}

}  // namespace

std::wstring Literal(std::wstring_view path) {
    return L"\\\\?\\" + std::wstring(path);
}

TempTree::TempTree() {
    static int made = 0;
    wchar_t temporary[MAX_PATH];
    GetTempPathW(MAX_PATH, temporary);
    root_ = std::wstring(temporary) + L"qs" + std::to_wstring(GetCurrentProcessId()) + L"_" +
            std::to_wstring(made++);
    EXPECT_TRUE(CreateDirectoryW(root_.c_str(), nullptr)) << "error " << GetLastError();
}

TempTree::~TempTree() {
    for (const std::wstring& relative : hostMade_) {
        std::wstring hostName = relative;
        std::replace(hostName.begin(), hostName.end(), L'\\', L'/');
        RunHostShell(root_, L"rm -r '" + hostName + L"'");
        const std::wstring path = Literal(Path(relative));
        EXPECT_TRUE(WaitFor([&] { return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES; }));
    }
    const auto deleted = [this] {
        DeleteTree(Literal(root_));
        return GetFileAttributesW(root_.c_str()) == INVALID_FILE_ATTRIBUTES;
    };
    // A link that leads nowhere any more is gone later than the system says.
    EXPECT_TRUE(deleted() || (!hostMade_.empty() && WaitFor(deleted)))
        << "the test's folder could not be deleted";
}

std::wstring TempTree::Path(std::wstring_view relative) const {
    return relative.empty() ? root_ : root_ + L"\\" + std::wstring(relative);
}

std::wstring TempTree::AddFolder(std::wstring_view relative) {
    for (std::size_t end = 0; end != std::wstring_view::npos;) {
        end = relative.find(L'\\', end + 1);
        const std::wstring path = Literal(Path(relative.substr(0, end)));
        const bool stands = CreateDirectoryW(path.c_str(), nullptr) || GetLastError() == ERROR_ALREADY_EXISTS;
        EXPECT_TRUE(stands) << "error " << GetLastError();
        if (!stands) break;
    }
    return Path(relative);
}

std::wstring TempTree::AddFile(std::wstring_view relative, std::string_view bytes) {
    const std::size_t separator = relative.rfind(L'\\');
    if (separator != std::wstring_view::npos) AddFolder(relative.substr(0, separator));
    const std::wstring path = Path(relative);
    const HANDLE file = CreateFileW(Literal(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << "error " << GetLastError();
    if (file == INVALID_HANDLE_VALUE) return path;
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    CloseHandle(file);
    return path;
}

bool TempTree::AddFolderLink(std::wstring_view relative, std::wstring_view target) {
    const std::wstring path = Path(relative);
    constexpr DWORD FolderWithoutPrivilege = 3;
    // Wine says yes and makes none, so the link is looked at.
    if (CreateSymbolicLinkW(path.c_str(), Path(target).c_str(), FolderWithoutPrivilege) &&
        IsLink(Literal(path))) {
        return true;
    }
    return AddHostLink(relative, target) && WaitFor([&] { return IsLink(Literal(path)); });
}

bool TempTree::AddFileLink(std::wstring_view relative, std::wstring_view target) {
    const std::wstring path = Path(relative);
    constexpr DWORD WithoutPrivilege = 2;
    if (CreateSymbolicLinkW(path.c_str(), Path(target).c_str(), WithoutPrivilege) && IsLink(Literal(path)))
        return true;
    // The host's links to files bear no mark.
    return AddHostLink(relative, target) &&
           WaitFor([&] { return GetFileAttributesW(Literal(path).c_str()) != INVALID_FILE_ATTRIBUTES; });
}

bool TempTree::AddHostLink(std::wstring_view relative, std::wstring_view target) {
    // The host knows the target only relative to the folder of the link.
    std::wstring hostTarget;
    for (const wchar_t unit : relative) {
        if (unit == L'\\') hostTarget += L"../";
    }
    hostTarget += target.empty() ? L"." : std::wstring(target);
    std::wstring hostName(relative);
    for (std::wstring* hostPath : {&hostTarget, &hostName})
        std::replace(hostPath->begin(), hostPath->end(), L'\\', L'/');
    if (!RunHostShell(root_, L"ln -s '" + hostTarget + L"' '" + hostName + L"'")) return false;
    hostMade_.emplace_back(relative);
    return true;
}

void TempTree::AddNumberedFiles(std::wstring_view folder, int count) {
    AddFolder(folder);
    const std::wstring last = std::to_wstring(count - 1);
    const std::wstring done = Path(L"all made");
    // Listing the folder meanwhile would only hold the host up.
    if (RunHostShell(root_, L"seq -f '" + std::wstring(folder) + L"/file %.0f.txt' 0 " + last +
                                L" | xargs -d '\\n' touch && touch 'all made'")) {
        EXPECT_TRUE(WaitFor([&] { return GetFileAttributesW(done.c_str()) != INVALID_FILE_ATTRIBUTES; }));
        EXPECT_TRUE(DeleteFileW(done.c_str()));
        hostMade_.push_back(std::wstring(folder));
        return;
    }
    for (int i = 0; i < count; ++i) {
        AddFile(std::wstring(folder) + L"\\file " + std::to_wstring(i) + L".txt");
    }
}
