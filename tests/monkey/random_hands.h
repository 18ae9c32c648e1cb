#pragma once

// Random hands on the running program. What a step does comes from its own random numbers and from what
// stands on the screen at that moment.

#include <windows.h>

#include <deque>
#include <string>
#include <vector>

#include "tests/monkey/device.h"
#include "tests/monkey/figures.h"
#include "tests/support/program_driver.h"

class RandomHands {
  public:
    RandomHands(ProgramDriver& program, Device& device, SharedJournal& journal, Figures& figures)
        : program_(program), device_(device), journal_(journal), figures_(figures) {}

    // Once the program has its window.
    void LookAt(DWORD processId) { processId_ = processId; }
    // One thing that a person, another program or the system does. Wild hands destroy windows as well.
    void Step(Random& random, bool wild);
    // Closes menus and dialogs until the main window waits for commands. False when it does not come to that.
    [[nodiscard]] bool Rest();
    // The dialogs, boxes and menus that take input, the front one first.
    [[nodiscard]] std::vector<HWND> OpenDialogs() const;
    // The visible windows of the program, in words.
    [[nodiscard]] std::string Scene() const;
    // The screen as it was.
    void RestoreScreen();

    // The last steps, oldest first.
    [[nodiscard]] const std::deque<std::string>& Trace() const { return trace_; }
    void ForgetTrace() { trace_.clear(); }

    // Visible top-level windows of the program, the front one first.
    [[nodiscard]] std::vector<HWND> TopWindows() const;
    // Its visible windows and their children.
    [[nodiscard]] std::vector<HWND> AllWindows() const;

  private:
    struct Action {
        const char* name;
        int weight;
        void (RandomHands::*run)(Random&);
    };
    static const Action Tame[];
    static const Action Wild[];

    // Pointer.
    void MovePointer(Random& random);
    void RestPointer(Random& random);
    void ClickSomewhere(Random& random);
    void ClickControl(Random& random);
    void DoubleClickControl(Random& random);
    void Drag(Random& random);
    void DragInControl(Random& random);
    void TurnWheel(Random& random);
    void ClickMenu(Random& random);
    // Keys.
    void PressAnyKey(Random& random);
    void HoldAnyKey(Random& random);
    void Type(Random& random);
    void PressMnemonic(Random& random);
    void WalkMenu(Random& random);
    void WalkList(Random& random);
    // Whole ways of a person.
    void Search(Random& random);
    void FillAndSearch(Random& random);
    void ChooseRow(Random& random);
    void Delete(Random& random);
    void Rename(Random& random);
    void ShowProperties(Random& random);
    void Browse(Random& random);
    void ShowAbout(Random& random);
    void Answer(Random& random);
    void LeaveDialog(Random& random);
    // What comes from elsewhere.
    void PostCommand(Random& random);
    void PostToControl(Random& random);
    void PostMessageTo(Random& random);
    void Notify(Random& random);
    void ChangeFiles(Random& random);
    void ChangeScreen(Random& random);
    void StartAgain(Random& random);
    void EndProgram(Random& random);
    // Wild only.
    void DestroyChild(Random& random);
    void DestroyDialog(Random& random);

    void Press(WORD key, std::initializer_list<WORD> modifiers = {});
    void TypeWord(const std::wstring& text);
    void ClickOn(POINT point, DWORD down, DWORD up);
    void SendCommand(HWND window, UINT command, UINT code = 0);
    void ComeForward();
    void EndStrangers() const;
    void Note(const std::string& words);
    [[nodiscard]] HWND Front() const;
    [[nodiscard]] bool IsAtRest();
    void Leave(HWND dialog, int attempt);
    [[nodiscard]] HWND AnyWindow(Random& random) const;
    [[nodiscard]] POINT PointIn(Random& random, HWND window) const;
    [[nodiscard]] POINT AnyPoint(Random& random) const;
    [[nodiscard]] HWND List() const;

    ProgramDriver& program_;
    Device& device_;
    SharedJournal& journal_;
    Figures& figures_;
    DWORD processId_ = 0;
    std::deque<std::string> trace_;
    bool screenChanged_ = false;
};
