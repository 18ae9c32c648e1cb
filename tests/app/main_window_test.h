#pragma once

// The real main window in the test's own process, with a clean registry. Its list and pages are read through
// their windows.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/main_window.h"
#include "resources/resource_ids.h"
#include "tests/results/list_cells.h"
#include "tests/support/key_presses.h"
#include "tests/support/message_pump.h"
#include "tests/support/test_world.h"

using Texts = std::vector<std::wstring>;

constexpr int NamePageIndex = 0;
constexpr int DatePageIndex = 1;
constexpr int SizePageIndex = 2;

class MainWindowTest : public testing::Test {
  protected:
    MainWindowTest();
    ~MainWindowTest() override;

    // Makes the window, shows it and lets it become complete.
    void Open(UiLanguage language = UiLanguage::English);
    // Makes the window and shows it; no message has been handled since.
    void OpenFirstPicture(UiLanguage language = UiLanguage::English);
    // Looks for the windows of the pages that stand.
    void FindPages();
    // Deletes the object, and the window with it where it is still there.
    void Discard() { window_.reset(); }
    // As start-up does: opens, posts a command, and lives until the program ends. The exit code.
    int RunToTheEnd(int firstCommand);

    [[nodiscard]] MainWindow& Window() { return *window_; }
    [[nodiscard]] HWND Handle() const { return window_->Handle(); }
    [[nodiscard]] HWND Tab() const { return FindWindowExW(Handle(), nullptr, WC_TABCONTROLW, nullptr); }
    [[nodiscard]] HWND List() const { return FindWindowExW(Handle(), nullptr, WC_LISTVIEWW, nullptr); }
    [[nodiscard]] HWND Page(int index) const { return pages_[index]; }
    [[nodiscard]] HWND Item(int page, int id) const { return GetDlgItem(Page(page), id); }
    [[nodiscard]] HWND EditOf(int comboId) const { return GetWindow(Item(NamePageIndex, comboId), GW_CHILD); }
    [[nodiscard]] std::wstring TextOf(int page, int id) const;
    void SetText(int page, int id, const std::wstring& text) const {
        SetWindowTextW(Item(page, id), text.c_str());
    }
    LRESULT Send(int page, int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(Item(page, id), message, wParam, lParam);
    }
    [[nodiscard]] int ShownPage() const;
    [[nodiscard]] UINT MenuState(int command) const {
        return GetMenuState(window_->Menu(), static_cast<UINT>(command), MF_BYCOMMAND);
    }
    [[nodiscard]] bool IsGray(int command) const { return (MenuState(command) & MF_GRAYED) != 0; }
    [[nodiscard]] bool IsMarked(int command) const { return (MenuState(command) & MF_CHECKED) != 0; }

    // A command of the menu, handled when this returns.
    void Command(int command) const { SendMessageW(Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0); }
    void PostCommand(int command) const {
        PostMessageW(Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    }
    // A key message as the program's loop treats it.
    void Key(HWND target, int key, std::initializer_list<int> modifiers = {});

    [[nodiscard]] int RowCount() const {
        return static_cast<int>(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0));
    }
    [[nodiscard]] Texts RowNames() const;
    void SelectRow(int row, bool select = true) const;

    // Removes what the program keeps in the registry.
    static void ForgetSettings();

    TestWorld world_;

  private:
    PropertySet properties_;
    std::unique_ptr<MainWindow> window_;
    HWND pages_[3] = {};
};
