#include "tests/fileops/tree_contents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <set>
#include <sstream>

namespace {

std::wstring Widened(const std::string& text) {
    return std::wstring(text.begin(), text.end());
}

std::wstring Relative(const std::string& written) {
    std::wstring path = Widened(written);
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

std::string TextOf(const std::wstring& path) {
    std::FILE* const file = _wfopen(path.c_str(), L"rb");
    if (file == nullptr) return "(cannot be read)";
    char text[256];
    const std::size_t length = std::fread(text, 1, sizeof text, file);
    std::fclose(file);
    return std::string(text, length);
}

// True when there was something.
bool Collect(const std::wstring& folder, const std::string& written, std::set<std::string>& entries) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return false;
    bool any = false;
    do {
        const std::wstring name = data.cFileName;
        if (name == L"." || name == L"..") continue;
        any = true;
        const std::string entry = written + std::string(name.begin(), name.end());
        const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (!isFolder) {
            entries.insert(entry + "=" + TextOf(folder + L"\\" + name));
        } else if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
            entries.insert(entry + "->");
        } else if (!Collect(folder + L"\\" + name, entry + "/", entries)) {
            entries.insert(entry + "/");
        }
    } while (FindNextFileW(search, &data));
    FindClose(search);
    return any;
}

std::string Joined(const std::set<std::string>& entries) {
    std::string line;
    for (const std::string& entry : entries)
        line += (line.empty() ? "" : " ") + entry;
    return line;
}

}  // namespace

void AddContents(TempTree& tree, const std::string& contents) {
    std::istringstream words(contents);
    std::string entry;
    while (words >> entry) {
        const std::size_t equals = entry.find('=');
        if (equals != std::string::npos) {
            tree.AddFile(Relative(entry.substr(0, equals)), entry.substr(equals + 1));
        } else {
            tree.AddFolder(Relative(entry.substr(0, entry.size() - 1)));
        }
    }
}

std::string ContentsOf(const TempTree& tree) {
    std::set<std::string> entries;
    Collect(tree.Root(), "", entries);
    return Joined(entries);
}

std::string InOrder(const std::string& contents) {
    std::istringstream words(contents);
    std::set<std::string> entries;
    for (std::string entry; words >> entry;)
        entries.insert(entry);
    return Joined(entries);
}

std::wstring PathIn(const TempTree& tree, const std::string& written) {
    return tree.Path(Relative(written));
}

void SetLastWriteTime(const std::wstring& path, const SYSTEMTIME& moment) {
    FILETIME time;
    ASSERT_TRUE(SystemTimeToFileTime(&moment, &time));
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
    CloseHandle(file);
}

bool Has(const std::string& contents, const std::string& entry) {
    return (" " + contents + " ").find(" " + entry + " ") != std::string::npos;
}
