#pragma once

// Drives the running program from outside, as a user does, and reads back what it shows. Every step has a
// deadline; a step that fails throws DriverError with what was waited for.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/deadline.h"
#include "tests/support/probe_link.h"
#include "tests/support/program_state.h"
#include "tests/support/running_program.h"

// Numbers of the pages, in tab order.
constexpr int NamePage = 0;
constexpr int DatePage = 1;
constexpr int SizePage = 2;

// What goes into the name page; a field that is not given is left as it is.
struct NameConditions {
    std::optional<std::wstring> name, contains, location;
    std::optional<bool> subFolders;
};

class ProgramDriver {
  public:
    // Starts the program and waits for its main window.
    void Start(const ProgramStart& start);
    // Takes the program that is running, waiting for its main window.
    void Attach(DWORD milliseconds);

    // Closes the main window and waits for the end; the exit code.
    DWORD Close();
    // The exit code of a program that is ending by itself.
    DWORD WaitForEnd();
    void Kill();
    [[nodiscard]] bool IsRunning() const { return program_ != nullptr && program_->IsRunning(); }
    [[nodiscard]] HWND Window() const { return window_; }
    // Of a page, or of the search's dialog. Throws DriverError when there is none.
    [[nodiscard]] HWND ControlWindow(int page, int id);

    // Conditions, through the controls' own messages.
    void Fill(const NameConditions& conditions);
    void SetText(int page, int id, const std::wstring& text);
    void SetCheck(int page, int id, bool checked);
    // A click on a button of a page, with its notification.
    void Click(int page, int id);
    // The same for a button that opens a dialog; waits for the dialog.
    void ClickToOpen(int page, int id);
    // Cancels the dialog that is open and waits until it is gone.
    void CancelDialog();
    void SelectEntry(int page, int id, int index);
    void SetSpin(int page, int id, int position);
    void SetDate(int page, int id, int yearMonthDay);
    // Clicks the tab and waits until its page is shown.
    void ShowPage(int page);

    // Commands and searches.
    void SendMenuCommand(UINT command);  // posts it and waits until the program has taken it
    void Find();                         // runs a whole search
    void PostFind();
    void BeginFind();  // returns once the search has begun
    // Runs a search up to the moment when the list has this many rows, and holds it there until Release, or
    // for the longest time at most. False when the search ended first.
    [[nodiscard]] bool FindAndHold(int rows = 0, DWORD longest = 20000);
    // The same, but pointer and keys work while it is held, as in any search that takes long.
    [[nodiscard]] bool FindAndHoldAwake(int rows = 0, DWORD longest = 20000);
    void Release();
    void WaitForEndOfSearch(DWORD milliseconds = 2 * StepDeadline);
    [[nodiscard]] int SearchesBegun();
    [[nodiscard]] bool Searching();
    // A key or a click that the program has not taken yet.
    [[nodiscard]] bool InputWaits();
    void PressAbort();  // posts the click on the dialog's button

    // Focus, keys, selection.
    void BringForward();
    void FocusControl(int page, int id);
    void FocusTab();
    void SelectRow(int row, bool select = true);
    // Until what was posted before has been taken. Keys and clicks come after what is posted.
    void WaitForQueue() { link_->WaitForQueue(); }
    // Until the keys and clicks that were sent before have been taken, and what they posted.
    void WaitForInput();
    void Repaint();
    // The item at this place of Tree().
    void SelectTreeItem(int place);

    // What only the program itself does in a quiet world: destroys one of its windows, sends a notification
    // of one of its controls with nothing but a header.
    void DestroyWindowOf(HWND window);
    void Notify(HWND control, int code);

    // Reading back.
    std::vector<RowState> Rows();
    std::vector<std::wstring> RowPaths();  // folder joined with name, in the order of the rows
    std::vector<std::wstring> RowNames();
    ListState List();
    std::vector<ColumnState> Columns();
    std::vector<MenuItemState> Menu();
    MenuItemState MenuItem(UINT id);
    std::vector<ButtonState> Bar();
    std::vector<TabState> Tabs();
    int CurrentPage();
    ControlState Control(int page, int id);
    ComboState Combo(int page, int id);
    PickerState Picker(int page, int id);
    SpinState Spin(int page, int id);
    std::vector<DialogState> Dialogs();
    // Of the folder browser, parents before their children; empty when it is not open.
    std::vector<TreeItemState> Tree();
    std::optional<DialogState> FindingDialog();
    // The windows from the focus up to the top one, as class names in lower case and ids: "edit:1001
    // combobox:10401 #32770:0 ..."; empty without focus.
    std::wstring FocusPath();
    // True when the control, or a part of it, has the focus.
    bool HasFocus(int page, int id);
    bool TabHasFocus();
    bool ListHasFocus();

  private:
    [[nodiscard]] bool FindAndHold(int rows, DWORD longest, bool staysAwake);
    void Connect();

    std::unique_ptr<RunningProgram> program_;
    std::unique_ptr<ProbeLink> link_;
    HWND window_ = nullptr;
};
