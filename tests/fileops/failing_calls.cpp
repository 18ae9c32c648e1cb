#include "tests/fileops/failing_calls.h"

FailingCalls* FailingCalls::current = nullptr;

FailingCalls::FailingCalls(Failing wanted, int firstToFail, DWORD failureCode)
    : real_(ce::fileCalls), mode_(wanted), first_(firstToFail), code_(failureCode) {
    current = this;
    ce::FileCalls& inForce = ce::fileCalls;
    inForce.findFirstFile = FindFirst;
    inForce.findNextFile = FindNext;
    inForce.findClose = FindEnd;
    inForce.getFileAttributes = GetAttributes;
    inForce.setFileAttributes = SetAttributes;
    inForce.deleteFile = Delete;
    inForce.moveFile = Move;
    inForce.copyFile = Copy;
    inForce.createDirectory = CreateFolder;
    inForce.removeDirectory = RemoveFolder;
}

FailingCalls::~FailingCalls() {
    ce::fileCalls = real_;
    current = nullptr;
}

// Counts the call. The thread's last error is set for one that fails.
bool FailingCalls::Fails() {
    const int number = ++current->calls_;
    if (current->atCall) current->atCall(number);
    const bool fails = current->mode_ == Failing::Once         ? number == current->first_
                       : current->mode_ == Failing::FromThenOn ? number >= current->first_
                                                               : false;
    if (fails) SetLastError(current->code_);
    return fails;
}

template <typename Call>
BOOL FailingCalls::Attempt(Change::Kind kind, const wchar_t* path, Call call) {
    const BOOL done = Fails() ? FALSE : call();
    const DWORD error = done ? 0 : GetLastError();
    current->changes_.push_back({kind, path, error, current->calls_});
    SetLastError(error);
    return done;
}

HANDLE FailingCalls::FindFirst(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
    if (Fails()) return INVALID_HANDLE_VALUE;
    const HANDLE search = current->real_.findFirstFile(pattern, data);
    if (search != INVALID_HANDLE_VALUE) ++current->openSearches_;
    return search;
}

BOOL FailingCalls::FindNext(HANDLE search, WIN32_FIND_DATAW* data) {
    return Fails() ? FALSE : current->real_.findNextFile(search, data);
}

// Even one that says that it failed has closed.
BOOL FailingCalls::FindEnd(HANDLE search) {
    const bool fails = Fails();
    --current->openSearches_;
    const BOOL closed = current->real_.findClose(search);
    if (fails) SetLastError(current->code_);
    return fails ? FALSE : closed;
}

DWORD FailingCalls::GetAttributes(const wchar_t* path) {
    return Fails() ? INVALID_FILE_ATTRIBUTES : current->real_.getFileAttributes(path);
}

BOOL FailingCalls::SetAttributes(const wchar_t* path, DWORD attributes) {
    return Attempt(Change::Kind::SetAttributes, path,
                   [&] { return current->real_.setFileAttributes(path, attributes); });
}

BOOL FailingCalls::Delete(const wchar_t* path) {
    return Attempt(Change::Kind::Delete, path, [&] { return current->real_.deleteFile(path); });
}

BOOL FailingCalls::Move(const wchar_t* from, const wchar_t* to) {
    return Attempt(Change::Kind::Move, from, [&] { return current->real_.moveFile(from, to); });
}

BOOL FailingCalls::Copy(const wchar_t* from, const wchar_t* to, BOOL failIfExists) {
    return Attempt(Change::Kind::Copy, from, [&] { return current->real_.copyFile(from, to, failIfExists); });
}

BOOL FailingCalls::CreateFolder(const wchar_t* path, SECURITY_ATTRIBUTES* security) {
    return Attempt(Change::Kind::CreateFolder, path,
                   [&] { return current->real_.createDirectory(path, security); });
}

BOOL FailingCalls::RemoveFolder(const wchar_t* path) {
    return Attempt(Change::Kind::RemoveFolder, path, [&] { return current->real_.removeDirectory(path); });
}
