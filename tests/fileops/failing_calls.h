#pragma once

// The file system with a fault: every call is counted, one of them fails, and what was changed or could not
// be is written down. The calls are the real ones otherwise.

#include <functional>
#include <string>
#include <vector>

#include "platform/windows_ce.h"
#include "tests/support/replaced_calls.h"

enum class Failing { Nothing, Once, FromThenOn };

// A call that changes something, and its outcome.
struct Change {
    enum class Kind { Copy, Move, Delete, CreateFolder, RemoveFolder, SetAttributes } kind;
    std::wstring path;
    DWORD code;  // 0 when it succeeded
    int call;    // its number among all calls
};

class FailingCalls {
  public:
    // Call number `first`, counted from 1, fails with the code. Only one object may live at a time.
    explicit FailingCalls(Failing mode = Failing::Nothing, int first = 0, DWORD code = 0);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    // Called with the number of each call before it is made.
    std::function<void(int)> atCall;

    [[nodiscard]] int Calls() const { return calls_; }
    [[nodiscard]] int OpenSearches() const { return openSearches_; }
    [[nodiscard]] const std::vector<Change>& Changes() const { return changes_; }

  private:
    static bool Fails();
    template <typename Call>
    static BOOL Attempt(Change::Kind kind, const wchar_t* path, Call call);

    static HANDLE FindFirst(const wchar_t* pattern, WIN32_FIND_DATAW* data);
    static BOOL FindNext(HANDLE search, WIN32_FIND_DATAW* data);
    static BOOL FindEnd(HANDLE search);
    static DWORD GetAttributes(const wchar_t* path);
    static BOOL SetAttributes(const wchar_t* path, DWORD attributes);
    static BOOL Delete(const wchar_t* path);
    static BOOL Move(const wchar_t* from, const wchar_t* to);
    static BOOL Copy(const wchar_t* from, const wchar_t* to, BOOL failIfExists);
    static BOOL CreateFolder(const wchar_t* path, SECURITY_ATTRIBUTES* security);
    static BOOL RemoveFolder(const wchar_t* path);

    static FailingCalls* current;

    ce::FileCalls real_;
    Failing mode_;
    int first_;
    DWORD code_;
    int calls_ = 0;
    int openSearches_ = 0;
    std::vector<Change> changes_;
};
