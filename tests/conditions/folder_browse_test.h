#pragma once

// The fixture of the folder browser's tests: a device of three folders, and a user who does something with
// the browser as soon as it comes up.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "conditions/folder_browse_dialog.h"
#include "tests/conditions/page_test.h"
#include "tests/search/fake_folders.h"

using Names = std::vector<std::wstring>;

inline HWND TreeIn(HWND dialog) {
    return GetDlgItem(dialog, TREE_FOLDERS);
}

inline std::wstring TextOfWindow(HWND window) {
    wchar_t text[MAX_PATH] = L"";
    GetWindowTextW(window, text, MAX_PATH);
    return text;
}

class FolderBrowse : public PageTest {
  protected:
    FolderBrowse() {
        const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_TREEVIEW_CLASSES};
        InitCommonControlsEx(&classes);
        hook_ = SetWindowsHookExW(WH_CBT, WatchActivation, nullptr, GetCurrentThreadId());
        folders_.AddFolder(L"\\", L"My Documents");
        folders_.AddFolder(L"\\", L"A");
        folders_.AddFolder(L"\\A", L"B");
    }
    ~FolderBrowse() override {
        UnhookWindowsHookEx(hook_);
        nextDoing = nullptr;
    }

    // Runs the dialog while the user does this with it.
    INT_PTR Run(FolderBrowseDialog& dialog, const std::function<void(HWND)>& doing) {
        nextDoing = doing;
        return dialog.RunModal();
    }

    FakeFolders folders_;

    // What the user does with the next dialog that comes up, once.
    static inline std::function<void(HWND)> nextDoing;

  private:
    static LRESULT CALLBACK WatchActivation(int code, WPARAM wParam, LPARAM lParam) {
        const auto window = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && nextDoing && GetDlgItem(window, TREE_FOLDERS) != nullptr) {
            const std::function<void(HWND)> doing = std::exchange(nextDoing, nullptr);
            doing(window);
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK hook_;
};
