// A file operation in a process of its own, for tests in which the power goes: the process ends itself by
// force before one of the calls that change something.
//     powerless_operation KIND ROOT CALL
// runs the operation with the number KIND on the tree of power_loss_test.cpp below ROOT and ends before the
// change number CALL, from 1; 0 for none. Every question is answered with Yes.

#include <cstdlib>

#include "platform/windows_ce.h"
#include "tests/fileops/operation_user.h"
#include "tests/support/test_world.h"

namespace {

constexpr UINT EndedByForce = 77;

const ce::FileCalls real = ce::fileCalls;
int changesToCome = 0;

void EndBeforeChange() {
    if (--changesToCome == 0) TerminateProcess(GetCurrentProcess(), EndedByForce);
}

BOOL SetAttributes(const wchar_t* path, DWORD attributes) {
    EndBeforeChange();
    return real.setFileAttributes(path, attributes);
}
BOOL Delete(const wchar_t* path) {
    EndBeforeChange();
    return real.deleteFile(path);
}
BOOL Move(const wchar_t* from, const wchar_t* to) {
    EndBeforeChange();
    return real.moveFile(from, to);
}
BOOL Copy(const wchar_t* from, const wchar_t* to, BOOL failIfExists) {
    EndBeforeChange();
    return real.copyFile(from, to, failIfExists);
}
BOOL CreateFolder(const wchar_t* path, SECURITY_ATTRIBUTES* security) {
    EndBeforeChange();
    return real.createDirectory(path, security);
}
BOOL RemoveFolder(const wchar_t* path) {
    EndBeforeChange();
    return real.removeDirectory(path);
}

void WatchChanges() {
    ce::fileCalls.setFileAttributes = &SetAttributes;
    ce::fileCalls.deleteFile = &Delete;
    ce::fileCalls.moveFile = &Move;
    ce::fileCalls.copyFile = &Copy;
    ce::fileCalls.createDirectory = &CreateFolder;
    ce::fileCalls.removeDirectory = &RemoveFolder;
}

// An update and an exclusion compare the folders themselves.
std::wstring DestinationOf(FileOperationKind kind, const std::wstring& root) {
    const bool mergesInto = kind == FileOperationKind::Update || kind == FileOperationKind::Exclude;
    return root + (mergesInto ? L"\\d\\t" : L"\\d");
}

}  // namespace

int wmain(int count, wchar_t** words) {
    if (count != 4) return 1;
    const std::wstring root = words[2];
    TestWorld world;
    HostWindow host;
    FileOperation operation(&host.Object());
    operation.operation = static_cast<FileOperationKind>(_wtoi(words[1]));
    if (!operation.AddSource((root + L"\\s\\t").c_str())) return 1;
    if (!operation.SetDestination(DestinationOf(operation.operation, root).c_str())) return 1;
    changesToCome = _wtoi(words[3]);
    WatchChanges();
    const OperationUser user(operation, {IDYES});
    operation.RunModal();
    return 0;
}
