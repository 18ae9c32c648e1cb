#pragma once

// The edit in which a row's name is changed in place. Its keys are its own: while an input method composes,
// Enter and Esc belong to the input method, and neither ever reaches the list.

#include "framework/control.h"

class NameEdit : public Control {
  public:
    // The list makes the edit and destroys it.
    NameEdit(WindowObject* parent, HWND edit);

    // Whether the editing ended by Enter or by leaving the edit, and not by Esc.
    [[nodiscard]] bool IsTaken() const { return taken_; }
    // What stands in it; empty once the list has destroyed it.
    [[nodiscard]] std::wstring Text() const;

  private:
    LRESULT OnKeyDown(MessageRecord& record);
    LRESULT OnFocusLost(MessageRecord& record);
    LRESULT OnComposition(MessageRecord& record);
    LRESULT OnMoving(MessageRecord& record);
    LRESULT OnDestroyed(MessageRecord& record);

    bool composing_ = false;
    bool taken_ = false;
    bool givenUp_ = false;
};
