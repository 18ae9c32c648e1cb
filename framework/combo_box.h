#pragma once

// Fields that a person types into: a text field by itself, and a combo box with one in it.

#include <span>

#include "framework/control.h"

// A one-line text field that raises Enter and, if asked to, Tab as events of its own instead of leaving them
// to the system.
class TextField : public Control {
  public:
    // The edit control is a dialog's own or, with Ownership::Wrapped, the one inside a combo box.
    TextField(WindowObject* parent, HWND edit, Ownership ownership = Ownership::FollowsParent);

    void TurnOnTabNotification() { tabNotification_ = true; }
    void LimitText(std::size_t units) { SendMessageW(Handle(), EM_LIMITTEXT, units, 0); }
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

// What a combo box can be asked to do, one line each. It holds the window's handle and no state.
class ComboBox {
  public:
    explicit ComboBox(HWND window) : window_(window) {}

    [[nodiscard]] int Count() const { return static_cast<int>(Send(CB_GETCOUNT)); }
    // The index of the selected entry; CB_ERR if there is none.
    [[nodiscard]] int Selected() const { return static_cast<int>(Send(CB_GETCURSEL)); }
    void Select(int index) const { Send(CB_SETCURSEL, index); }

    void Append(const wchar_t* text) const { Send(CB_ADDSTRING, 0, text); }
    void Insert(int index, const wchar_t* text) const { Send(CB_INSERTSTRING, index, text); }
    void Delete(int index) const { Send(CB_DELETESTRING, index); }
    void Clear() const { Send(CB_RESETCONTENT); }
    // The first entry that begins with the text, ignoring case, searching from behind the start and round
    // again; CB_ERR if there is none.
    [[nodiscard]] int Find(int start, const wchar_t* text) const {
        return ce::FindComboEntry(window_, start, text);
    }
    // Leaves an empty text if there is no such entry or if it does not fit.
    void ReadText(int index, std::span<wchar_t> text) const;

    // The pointer stored with an entry; null if there is no such entry.
    void SetData(int index, const void* data) const { Send(CB_SETITEMDATA, index, data); }
    [[nodiscard]] const void* Data(int index) const;

    [[nodiscard]] bool IsListOpen() const { return Send(CB_GETDROPPEDSTATE) != 0; }
    void CloseList() const { Send(CB_SHOWDROPDOWN, FALSE); }
    // The box and its open list together; 0 if the window is not a combo box.
    [[nodiscard]] LONG HeightWithList() const;

  private:
    LRESULT Send(UINT message, int index = 0, const void* argument = nullptr) const {
        return SendMessageW(window_, message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(argument));
    }

    HWND window_;
};

// A combo box with an edit control, whose Enter and Tab it raises as events of its own.
class ComboBoxControl : public Control {
  public:
    ComboBoxControl(WindowObject* parent, HWND handle);

    void TurnOnTabNotification() { edit_.TurnOnTabNotification(); }
    [[nodiscard]] std::span<const EventCode> OwnEvents() const override;
    [[nodiscard]] TextField& Edit() { return edit_; }
    [[nodiscard]] ComboBox Box() const { return ComboBox(Handle()); }

  private:
    LRESULT OnEditKey(EventArguments& arguments);
    [[nodiscard]] bool IsObjectOf(HWND window) const;

    TextField edit_;
};
