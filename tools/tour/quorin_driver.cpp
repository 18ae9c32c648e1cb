// Drives the running program for a script, one step a call or several, with commas between them. Every step
// has a deadline; a step that fails says on standard error what it waited for. Status: 0 done, 1 failed, 2
// not understood.

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "resources/resource_ids.h"
#include "tests/support/program_driver.h"
#include "tests/support/user_input.h"
#include "tests/support/utf8.h"
#include "tools/tour/hand_steps.h"

namespace {

constexpr char Usage[] =
    "usage: quorin_driver STEP [, STEP]...\n"
    "  wait-window SECONDS          waits for the main window\n"
    "  fill [--name TEXT] [--contains TEXT] [--location TEXT] [--subfolders 0|1]\n"
    "  page NUMBER                  shows a condition page: 0 name, 1 date, 2 the other\n"
    "  click PAGE ID                clicks a control of a page\n"
    "  drop PAGE ID                 opens the list of a combo box or the calendar of a date picker\n"
    "  menu NUMBER                  opens a menu: 1 File, 2 View, 3 Option\n"
    "  escape                       closes the menu or list that is open\n"
    "  find [--hold [ROWS]]         starts a search; holds it once the list has ROWS rows (0)\n"
    "  release                      lets the held search go on\n"
    "  wait-done [SECONDS]          waits for the end of the search (60)\n"
    "  rows                         prints the rows: path, size, type and time, separated by tabs\n"
    "  state                        prints what the main window shows, one item a line\n"
    "  command NUMBER               sends a menu command\n"
    "  select NAME                  selects the row of this file\n"
    "  rename NAME                  begins to rename the selected row and types the name\n"
    "  press-enter                  presses Enter\n"
    "  wait-dialog [ID]             waits for a dialog, or for one that has this control\n"
    "  turn NUMBER ID               turns the open sheet to the page with this number, which has this "
    "control\n"
    "  sort NUMBER                  clicks the heading of a column: 0 name, 1 folder\n"
    "  browse                       opens the folder browser\n"
    "  cancel                       cancels the dialog that is open\n"
    "  close                        closes the program and waits for its end\n"
    "  close-screen                 closes the virtual screen, as the close box of its window does\n";

struct UsageError {};

using Words = std::vector<std::wstring>;

constexpr DWORD AttachDeadline = 10000;

void Print(const std::wstring& text) {
    const std::string line = Utf8(text) + "\n";
    std::fwrite(line.data(), 1, line.size(), stdout);
}

int ToNumber(const std::wstring& word) {
    if (word.empty() || word.size() > 6 || word.find_first_not_of(L"0123456789") != std::wstring::npos) {
        throw UsageError();
    }
    return std::stoi(word);
}

// The number at this place, or the default when the step was given without it.
int NumberAt(const Words& words, std::size_t place, int otherwise) {
    return words.size() > place ? ToNumber(words[place]) : otherwise;
}

void Fill(ProgramDriver& driver, const Words& words) {
    NameConditions conditions;
    for (std::size_t i = 1; i < words.size(); i += 2) {
        if (i + 1 >= words.size()) throw UsageError();
        const std::wstring& value = words[i + 1];
        if (words[i] == L"--name") {
            conditions.name = value;
        } else if (words[i] == L"--contains") {
            conditions.contains = value;
        } else if (words[i] == L"--location") {
            conditions.location = value;
        } else if (words[i] == L"--subfolders") {
            conditions.subFolders = ToNumber(value) != 0;
        } else {
            throw UsageError();
        }
    }
    driver.Fill(conditions);
}

void Find(ProgramDriver& driver, const Words& words) {
    if (words.size() == 1) {
        driver.BeginFind();
        return;
    }
    if (words[1] != L"--hold") throw UsageError();
    if (!driver.FindAndHold(NumberAt(words, 2, 0))) {
        std::fputs("quorin_driver: the search ended before it could be held\n", stderr);
    }
}

void Sort(ProgramDriver& driver, int column) {
    const std::vector<ColumnState> columns = driver.Columns();
    if (static_cast<std::size_t>(column) >= columns.size()) throw UsageError();
    const RECT heading = columns[static_cast<std::size_t>(column)].rectangle;
    driver.BringForward();
    ClickAt({(heading.left + heading.right) / 2, (heading.top + heading.bottom) / 2});
    driver.WaitForQueue();
}

void PrintRows(ProgramDriver& driver) {
    const std::vector<RowState> rows = driver.Rows();
    const std::vector<std::wstring> paths = driver.RowPaths();
    for (std::size_t i = 0; i < rows.size() && i < paths.size(); ++i) {
        Print(paths[i] + L'\t' + rows[i].size + L'\t' + rows[i].type + L'\t' + rows[i].modified);
    }
}

void PrintState(ProgramDriver& driver) {
    const ListState list = driver.List();
    Print(L"rows " + std::to_wstring(list.count));
    Print(L"selected " + std::to_wstring(list.selected));
    Print(L"page " + std::to_wstring(driver.CurrentPage()));
    Print(L"focus " + driver.FocusPath());
    for (const TabState& tab : driver.Tabs())
        Print(L"tab " + tab.caption);
    for (const ColumnState& column : driver.Columns())
        Print(L"column " + column.heading);
    for (const MenuItemState& item : driver.Menu()) {
        if (item.Separator()) continue;
        const std::wstring marks =
            std::wstring(item.Grayed() ? L" gray" : L"") + (item.Checked() ? L" checked" : L"");
        Print(L"menu " + std::to_wstring(item.id) + L' ' + item.text + marks);
    }
    const std::optional<DialogState> finding = driver.FindingDialog();
    if (finding) Print(L"finding " + finding->caption);
}

// The steps that need no number and no word.
bool RunPlainStep(ProgramDriver& driver, const std::wstring& step) {
    if (step == L"release") {
        driver.Release();
    } else if (step == L"rows") {
        PrintRows(driver);
    } else if (step == L"state") {
        PrintState(driver);
    } else if (step == L"escape") {
        PressEscape();
    } else if (step == L"press-enter") {
        PressEnter();
    } else if (step == L"browse") {
        driver.ClickToOpen(NamePage, BUTTON_BROWSE);
    } else if (step == L"cancel") {
        driver.CancelDialog();
    } else if (step == L"close") {
        const DWORD code = driver.Close();
        if (code != 0) throw DriverError("the program ended with exit code " + std::to_string(code));
    } else {
        return false;
    }
    return true;
}

void RunStepWithOneWord(ProgramDriver& driver, const std::wstring& step, const std::wstring& word) {
    if (step == L"page") {
        const int page = ToNumber(word);
        if (page > SizePage) throw UsageError();
        driver.ShowPage(page);
    } else if (step == L"command") {
        driver.SendMenuCommand(static_cast<UINT>(ToNumber(word)));
    } else if (step == L"sort") {
        Sort(driver, ToNumber(word));
    } else if (step == L"menu") {
        const int menu = ToNumber(word);
        if (menu < 1 || menu > 3) throw UsageError();
        OpenMenu(driver, menu);
    } else if (step == L"select") {
        SelectRowOf(driver, word);
    } else if (step == L"rename") {
        TypeNewName(driver, word);
    } else {
        throw UsageError();
    }
}

void RunStepWithTwoNumbers(ProgramDriver& driver, const std::wstring& step, int first, int second) {
    if (step == L"click") {
        ClickControl(driver, first, second);
    } else if (step == L"drop") {
        OpenDropDown(driver, first, second);
    } else if (step == L"turn") {
        TurnSheet(driver, first, second);
    } else {
        throw UsageError();
    }
}

void RunStep(ProgramDriver& driver, const Words& words) {
    const std::wstring& step = words[0];
    if (step == L"fill") {
        Fill(driver, words);
    } else if (step == L"find") {
        Find(driver, words);
    } else if (step == L"wait-done") {
        driver.WaitForEndOfSearch(static_cast<DWORD>(NumberAt(words, 1, 60)) * 1000);
    } else if (step == L"wait-dialog") {
        AwaitDialog(driver, NumberAt(words, 1, 0));
    } else if (words.size() == 3) {
        RunStepWithTwoNumbers(driver, step, ToNumber(words[1]), ToNumber(words[2]));
    } else if (words.size() == 2) {
        RunStepWithOneWord(driver, step, words[1]);
    } else if (!RunPlainStep(driver, step)) {
        throw UsageError();
    }
}

void RunOnly(const Words& words) {
    ProgramDriver driver;
    if (words[0] == L"wait-window") {
        if (words.size() != 2) throw UsageError();
        driver.Attach(static_cast<DWORD>(ToNumber(words[1])) * 1000);
    } else if (words[0] == L"close-screen") {
        PostMessageW(GetDesktopWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
    } else {
        driver.Attach(AttachDeadline);
        RunStep(driver, words);
    }
}

void Run(const Words& words) {
    auto begin = words.begin();
    while (true) {
        const auto end = std::find(begin, words.end(), L",");
        if (begin == end) throw UsageError();
        RunOnly(Words(begin, end));
        if (end == words.end()) return;
        begin = end + 1;
    }
}

}  // namespace

int wmain(int argumentCount, wchar_t** arguments) {
    // Lines end as a script on any system expects them.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    try {
        Run(Words(arguments + 1, arguments + argumentCount));
        return 0;
    } catch (const UsageError&) {
        std::fputs(Usage, stderr);
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quorin_driver: %s\n", error.what());
        return 1;
    }
}
