#include "tests/search/fake_folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>

#include "platform/name_wildcard.h"

namespace {

FakeFolders* inForce = nullptr;

}  // namespace

struct FakeFolders::Listing {
    std::vector<WIN32_FIND_DATAW> entries;
    std::size_t next = 0;
};

FakeFolders::FakeFolders() {
    inForce = this;
}

FakeFolders::~FakeFolders() {
    EXPECT_EQ(openListings, 0) << "a listing was left open";
    inForce = nullptr;
}

void FakeFolders::Add(const std::wstring& folder, const WIN32_FIND_DATAW& entry) {
    folders_[folder].push_back(entry);
}

void FakeFolders::AddFile(const std::wstring& folder, const std::wstring& name, DWORD size) {
    WIN32_FIND_DATAW entry = {};
    entry.dwFileAttributes = FILE_ATTRIBUTE_ARCHIVE;
    entry.nFileSizeLow = size;
    std::wcsncpy(entry.cFileName, name.c_str(), MAX_PATH - 1);
    Add(folder, entry);
}

void FakeFolders::AddFolder(const std::wstring& folder, const std::wstring& name, DWORD furtherAttributes) {
    WIN32_FIND_DATAW entry = {};
    entry.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY | furtherAttributes;
    std::wcsncpy(entry.cFileName, name.c_str(), MAX_PATH - 1);
    Add(folder, entry);
}

void FakeFolders::SetWritten(const std::wstring& folder, const std::wstring& name, const FILETIME& time) {
    for (WIN32_FIND_DATAW& entry : folders_[folder]) {
        if (name == entry.cFileName) entry.ftLastWriteTime = time;
    }
}

void FakeFolders::SetContent(const std::wstring& path, const std::string& bytes) {
    contents_[path] = bytes;
}

void FakeFolders::FailListing(const std::wstring& folder, DWORD code) {
    failures_[folder] = code;
}

void FakeFolders::SetFolderLink(const std::wstring& path) {
    links_.push_back(path);
}

HANDLE FakeFolders::Start(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
    const std::wstring whole = pattern;
    inForce->listed.push_back(whole);
    const std::size_t separator = whole.rfind(L'\\');
    const std::wstring folder = separator == 0 ? L"\\" : whole.substr(0, separator);
    const std::wstring name = whole.substr(separator + 1);
    SetLastError(ERROR_PATH_NOT_FOUND);
    if (const auto failure = inForce->failures_.find(folder); failure != inForce->failures_.end()) {
        SetLastError(failure->second);
        return INVALID_HANDLE_VALUE;
    }
    const auto found = inForce->folders_.find(folder);
    if (found == inForce->folders_.end()) return INVALID_HANDLE_VALUE;

    auto* const listing = new Listing;
    for (const WIN32_FIND_DATAW& entry : found->second) {
        if (MatchesWildcard(entry.cFileName, name.c_str())) listing->entries.push_back(entry);
    }
    if (listing->entries.empty()) {
        delete listing;
        SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    ++inForce->openListings;
    Next(listing, data);
    return listing;
}

BOOL FakeFolders::Next(HANDLE search, WIN32_FIND_DATAW* data) {
    auto& listing = *static_cast<Listing*>(search);
    if (listing.next == listing.entries.size()) {
        SetLastError(ERROR_NO_MORE_FILES);
        return FALSE;
    }
    *data = listing.entries[listing.next++];
    return TRUE;
}

BOOL FakeFolders::End(HANDLE search) {
    --inForce->openListings;
    delete static_cast<Listing*>(search);
    return TRUE;
}

std::FILE* FakeFolders::Open(const wchar_t* path) {
    inForce->opened.emplace_back(path);
    const auto content = inForce->contents_.find(path);
    if (content == inForce->contents_.end()) return nullptr;
    std::FILE* const file = std::tmpfile();
    if (file == nullptr) return nullptr;
    std::fwrite(content->second.data(), 1, content->second.size(), file);
    std::rewind(file);
    return file;
}

bool FakeFolders::IsLink(const wchar_t* path) {
    return std::find(inForce->links_.begin(), inForce->links_.end(), path) != inForce->links_.end();
}
