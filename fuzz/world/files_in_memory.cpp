#include "files_in_memory.h"

#include <cwchar>

#include "platform/ce_files.h"
#include "platform/name_wildcard.h"

namespace {

FilesInMemory* inForce = nullptr;
DWORD lastError = 0;

std::wstring FolderAbove(const std::wstring& path) {
    const std::size_t separator = path.rfind(L'\\');
    return separator == std::wstring::npos ? L"" : path.substr(0, separator);
}

std::wstring NameOf(const std::wstring& path) {
    return path.substr(path.rfind(L'\\') + 1);
}

void Describe(const FileInMemory& file, WIN32_FIND_DATAW* data) {
    *data = {};
    data->dwFileAttributes = file.attributes;
    data->ftLastWriteTime.dwLowDateTime = file.written;
    std::wcsncpy(data->cFileName, NameOf(file.path).c_str(), MAX_PATH - 1);
}

}  // namespace

DWORD GetLastError() {
    return lastError;
}
void SetLastError(DWORD error) {
    lastError = error;
}

// A file has one path here.
bool ce::IsSameFile(const wchar_t* first, const wchar_t* second) {
    return inForce->Find(first) != nullptr && inForce->Find(first) == inForce->Find(second);
}

struct FilesInMemory::Listing {
    std::vector<FileInMemory> entries;
    std::size_t next = 0;
};

FilesInMemory::FilesInMemory() : before_(ce::fileCalls) {
    inForce = this;
    ce::fileCalls = {Start,  Next, End,  before_.openForReading, Attributes,   SetAttributes,
                     Delete, Move, Copy, CreateFolder,           RemoveFolder, IsFolderLink};
}

FilesInMemory::~FilesInMemory() {
    ce::fileCalls = before_;
    inForce = nullptr;
}

std::wstring FilesInMemory::Folded(std::wstring path) {
    for (wchar_t& unit : path)
        if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit + 32);
    return path;
}

void FilesInMemory::AddFile(const std::wstring& path, int content, DWORD written, DWORD attributes) {
    files_.try_emplace(Folded(path), FileInMemory{path, attributes, content, written});
}

void FilesInMemory::AddFolder(const std::wstring& path, DWORD furtherAttributes) {
    files_.try_emplace(Folded(path), FileInMemory{path, FILE_ATTRIBUTE_DIRECTORY | furtherAttributes});
}

const FileInMemory* FilesInMemory::Find(const std::wstring& path) const {
    if (path == root_.path) return &root_;
    const auto found = files_.find(Folded(path));
    return found == files_.end() ? nullptr : &found->second;
}

FileInMemory* FilesInMemory::Lookup(const std::wstring& path) {
    if (path == root_.path) return &root_;
    const auto found = files_.find(Folded(path));
    return found == files_.end() ? nullptr : &found->second;
}

// The root is always there.
bool FilesInMemory::HasFolderAbove(const std::wstring& path) const {
    const std::wstring above = FolderAbove(path);
    if (above.empty()) return !path.empty() && path[0] == L'\\';
    const FileInMemory* const folder = Find(above);
    return folder != nullptr && folder->IsFolder();
}

bool FilesInMemory::HasEntries(const std::wstring& path) const {
    const std::wstring inside = Folded(path) + L'\\';
    const auto first = files_.lower_bound(inside);
    return first != files_.end() && first->first.compare(0, inside.size(), inside) == 0;
}

BOOL FilesInMemory::Try(Change change, const std::wstring& path, const std::wstring& target, DWORD error) {
    SetLastError(Judge(change, path, target, error));
    return GetLastError() == 0 ? TRUE : FALSE;
}

HANDLE FilesInMemory::Start(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
    const std::wstring folder = FolderAbove(pattern);
    const std::wstring name = NameOf(pattern);
    auto* const listing = new Listing;
    const std::wstring inside = Folded(folder) + L'\\';
    for (auto at = inForce->files_.lower_bound(inside); at != inForce->files_.end(); ++at) {
        if (at->first.compare(0, inside.size(), inside) != 0) break;
        if (at->first.find(L'\\', inside.size()) != std::wstring::npos) continue;
        if (MatchesWildcard(NameOf(at->second.path).c_str(), name.c_str()))
            listing->entries.push_back(at->second);
    }
    ++inForce->openListings;
    if (Next(listing, data)) return listing;
    End(listing);
    SetLastError(ERROR_FILE_NOT_FOUND);
    return INVALID_HANDLE_VALUE;
}

BOOL FilesInMemory::Next(HANDLE search, WIN32_FIND_DATAW* data) {
    auto& listing = *static_cast<Listing*>(search);
    SetLastError(ERROR_NO_MORE_FILES);
    if (listing.next == listing.entries.size()) return FALSE;
    Describe(listing.entries[listing.next++], data);
    return TRUE;
}

BOOL FilesInMemory::End(HANDLE search) {
    --inForce->openListings;
    delete static_cast<Listing*>(search);
    return TRUE;
}

DWORD FilesInMemory::Attributes(const wchar_t* path) {
    const FileInMemory* const file = inForce->Find(path);
    SetLastError(ERROR_FILE_NOT_FOUND);
    return file == nullptr ? INVALID_FILE_ATTRIBUTES : file->attributes;
}

BOOL FilesInMemory::SetAttributes(const wchar_t* path, DWORD attributes) {
    FileInMemory* const file = inForce->Lookup(path);
    const DWORD error = file == nullptr ? ERROR_FILE_NOT_FOUND : 0;
    if (!inForce->Try(Change::Attributes, path, L"", error)) return FALSE;
    const DWORD kept = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    file->attributes = (attributes & ~kept) | (file->attributes & kept);
    return TRUE;
}

BOOL FilesInMemory::Delete(const wchar_t* path) {
    const FileInMemory* const file = inForce->Find(path);
    const bool isKept =
        file != nullptr && (file->IsFolder() || (file->attributes & FILE_ATTRIBUTE_READONLY) != 0);
    const DWORD error = file == nullptr ? ERROR_FILE_NOT_FOUND : isKept ? ERROR_ACCESS_DENIED : 0;
    if (!inForce->Try(Change::Delete, path, L"", error)) return FALSE;
    inForce->files_.erase(Folded(path));
    return TRUE;
}

DWORD FilesInMemory::ErrorOfMove(const std::wstring& from, const std::wstring& to) const {
    if (Find(from) == nullptr) return ERROR_FILE_NOT_FOUND;
    if (Find(from) == &root_) return ERROR_ACCESS_DENIED;
    if (Find(to) != nullptr && Find(to) != Find(from)) return ERROR_ALREADY_EXISTS;
    if (!HasFolderAbove(to)) return ERROR_PATH_NOT_FOUND;
    return Folded(to).compare(0, from.size() + 1, Folded(from) + L'\\') == 0 ? ERROR_SHARING_VIOLATION : 0;
}

BOOL FilesInMemory::Move(const wchar_t* from, const wchar_t* to) {
    const std::wstring source = Folded(from);
    if (!inForce->Try(Change::Move, from, to, inForce->ErrorOfMove(from, to))) return FALSE;
    std::map<std::wstring, FileInMemory> moved;
    for (auto at = inForce->files_.lower_bound(source); at != inForce->files_.end();) {
        if (at->first.compare(0, source.size(), source) != 0) break;
        const bool belongs = at->first.size() == source.size() || at->first[source.size()] == L'\\';
        if (belongs) {
            FileInMemory file = at->second;
            file.path = to + file.path.substr(source.size());
            moved[Folded(file.path)] = file;
        }
        at = belongs ? inForce->files_.erase(at) : std::next(at);
    }
    inForce->files_.merge(moved);
    return TRUE;
}

DWORD FilesInMemory::ErrorOfCopy(const std::wstring& from, const std::wstring& to) const {
    const FileInMemory* const source = Find(from);
    const FileInMemory* const target = Find(to);
    if (source == nullptr) return ERROR_FILE_NOT_FOUND;
    if (source->IsFolder() || (target != nullptr && target->IsFolder())) return ERROR_ACCESS_DENIED;
    if (source == target) return ERROR_SHARING_VIOLATION;
    if (!HasFolderAbove(to)) return ERROR_PATH_NOT_FOUND;
    return target != nullptr && (target->attributes & FILE_ATTRIBUTE_READONLY) != 0 ? ERROR_ACCESS_DENIED : 0;
}

BOOL FilesInMemory::Copy(const wchar_t* from, const wchar_t* to, BOOL) {
    if (!inForce->Try(Change::Copy, from, to, inForce->ErrorOfCopy(from, to))) return FALSE;
    FileInMemory copy = *inForce->Find(from);
    copy.path = inForce->Find(to) != nullptr ? inForce->Find(to)->path : to;
    inForce->files_[Folded(to)] = copy;
    return TRUE;
}

BOOL FilesInMemory::CreateFolder(const wchar_t* path, SECURITY_ATTRIBUTES*) {
    const DWORD error = inForce->Find(path) != nullptr   ? ERROR_ALREADY_EXISTS
                        : !inForce->HasFolderAbove(path) ? ERROR_PATH_NOT_FOUND
                                                         : 0;
    if (!inForce->Try(Change::CreateFolder, path, L"", error)) return FALSE;
    inForce->AddFolder(path);
    return TRUE;
}

BOOL FilesInMemory::RemoveFolder(const wchar_t* path) {
    const FileInMemory* const folder = inForce->Find(path);
    const DWORD error = folder == &inForce->root_                        ? ERROR_ACCESS_DENIED
                        : folder == nullptr                              ? ERROR_FILE_NOT_FOUND
                        : !folder->IsFolder()                            ? ERROR_ACCESS_DENIED
                        : !folder->IsLink() && inForce->HasEntries(path) ? ERROR_DIR_NOT_EMPTY
                                                                         : 0;
    if (!inForce->Try(Change::RemoveFolder, path, L"", error)) return FALSE;
    inForce->files_.erase(Folded(path));
    return TRUE;
}

bool FilesInMemory::IsFolderLink(const wchar_t* path) {
    const FileInMemory* const folder = inForce->Find(path);
    return folder == nullptr || folder->IsLink();
}
