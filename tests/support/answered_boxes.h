#pragma once

// Answers the message boxes and modal dialogs that the calling thread opens while this object lives, so that
// a test with real windows is never left waiting for a user. Each box is answered once it is active, with the
// next of the given answers, the last of which serves for all further boxes; what it showed is kept.

#include <windows.h>

#include <initializer_list>
#include <string>
#include <vector>

struct SeenBox {
    std::wstring caption;
    std::vector<std::wstring>
        texts;                 // of its controls, in their order; a message box's message is among them
    std::vector<int> buttons;  // the ids of its visible push buttons, in their order
    HICON icon = nullptr;      // the first that is shown
    HWND owner = nullptr;
};

class AnsweredBoxes {
  public:
    // Answers are button ids (IDYES, IDOK, ...). Only one such object may live at a time.
    AnsweredBoxes(std::initializer_list<int> answers);
    ~AnsweredBoxes();
    AnsweredBoxes(const AnsweredBoxes&) = delete;
    AnsweredBoxes& operator=(const AnsweredBoxes&) = delete;

    [[nodiscard]] const std::vector<SeenBox>& Seen() const { return seen_; }

    // Whether the box showed this text, wherever.
    [[nodiscard]] static bool Shows(const SeenBox& box, const std::wstring& text);

  private:
    static LRESULT CALLBACK HookProcedure(int code, WPARAM wParam, LPARAM lParam);
    void Answer(HWND box);

    std::vector<int> answers_;
    std::vector<HWND> answered_;
    std::vector<SeenBox> seen_;
    HHOOK hook_ = nullptr;
};
