#pragma once

// Fields that a person types into: a text field by itself, and a combo box with one in it.

#include "framework/control.h"

// A one-line text field that raises Enter and, when asked to, Tab on itself instead of letting the system
// make something else of them.
class TextField : public Control {
  public:
    // The edit may be a dialog's own or, wrapped, the one inside a combo box.
    TextField(WindowObject* parent, HWND edit, Ownership ownership = Ownership::FollowsParent);

    void TurnOnTabNotification() { tabNotification_ = true; }
    [[nodiscard]] std::span<const EventCode> OwnEvents() const override;

  private:
    LRESULT OnKeyDown(MessageRecord& record);
    LRESULT OnCharacter(MessageRecord& record);
    LRESULT OnGetDialogCode(MessageRecord& record);
    LRESULT OnComposition(MessageRecord& record);

    [[nodiscard]] bool Takes(WPARAM key) const;

    bool tabNotification_ = false;
    bool composing_ = false;
};

// A combo box with an edit, which raises the edit's Enter and Tab on itself.
class ComboBoxControl : public Control {
  public:
    ComboBoxControl(WindowObject* parent, HWND handle);

    void TurnOnTabNotification() { edit_.TurnOnTabNotification(); }
    [[nodiscard]] std::span<const EventCode> OwnEvents() const override;
    [[nodiscard]] TextField& Edit() { return edit_; }

  private:
    LRESULT OnEditKey(EventArguments& arguments);
    [[nodiscard]] bool IsListOpen() const;
    [[nodiscard]] bool IsObjectOf(HWND window) const;

    TextField edit_;
};
