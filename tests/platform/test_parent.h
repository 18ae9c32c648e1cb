#pragma once

// A plain top-level window that a test hangs its bars on; it writes down what reaches it.

#include <chrono>
#include <functional>
#include <utility>
#include <vector>

#include "platform/windows_ce.h"

class TestParent {
  public:
    // A visible window with a client area of this size at the screen's top left corner.
    TestParent(int clientWidth, int clientHeight);
    ~TestParent();
    TestParent(const TestParent&) = delete;
    TestParent& operator=(const TestParent&) = delete;

    [[nodiscard]] HWND Handle() const { return window_; }
    // A bar from this program's resources; null when it could not be made.
    [[nodiscard]] HWND MakeBar(UINT resource, int bitmap = 0, int images = 0) const;

    struct Command {
        WPARAM wParam;
        LPARAM lParam;
        bool operator==(const Command&) const = default;
    };
    std::vector<Command> commands;
    // The menus that were about to open, in their order.
    std::vector<HMENU> menusOpened;
    std::vector<UINT> systemCommands;
    // What becomes of WM_SIZE, if anything.
    std::function<void(WPARAM, LPARAM)> onSize;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND window_ = nullptr;
};

// Handles messages until the condition holds; false when it does not within two seconds.
bool PumpUntil(const std::function<bool()>& condition);

// Handles what is queued now.
void PumpAll();

// Handles messages for a fifth of a second, for what must not happen.
void PumpForAWhile();

// Each step is taken as soon as a menu is open in front of the user (and the steps before it have been
// taken), from within the menu's own loop. A menu still open when the steps are used up is closed after a
// while.
class MenuDriver {
  public:
    struct Step {
        template <typename Action>
        Step(Action what) : action(what) {}
        template <typename Action, typename Condition>
        Step(Action what, Condition condition) : action(what), when(condition) {}

        std::function<void()> action;
        // The step waits for this as well.
        std::function<bool()> when = [] { return true; };
    };
    explicit MenuDriver(std::vector<Step> steps);
    ~MenuDriver();
    MenuDriver(const MenuDriver&) = delete;
    MenuDriver& operator=(const MenuDriver&) = delete;

    [[nodiscard]] bool AllTaken() const { return taken_ == steps_.size(); }
    // Whether a menu had to be closed because nothing else closed it.
    [[nodiscard]] bool HadToClose() const { return hadToClose_; }

  private:
    static void CALLBACK Tick(HWND window, UINT message, UINT_PTR id, DWORD time);
    std::vector<Step> steps_;
    std::size_t taken_ = 0;
    int idleTicks_ = 0;
    bool hadToClose_ = false;
    UINT_PTR timer_ = 0;
};

[[nodiscard]] bool MenuIsOpen();
[[nodiscard]] HWND ToolBarOf(HWND bar);
[[nodiscard]] RECT ButtonRectangle(HWND bar, int command);
// Middle of a button, as the tool bar counts.
[[nodiscard]] LPARAM MiddleOf(HWND bar, int command);
// A click on the button as the mouse would make it.
void Click(HWND bar, int command);
void PressKey(HWND target, WPARAM key);
