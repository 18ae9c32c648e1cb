#pragma once

// The base of the three condition pages: a child dialog without the set-up and the bar of a dialog proper.

#include "framework/control.h"
#include "framework/dialog.h"
#include "framework/dialog_template.h"
#include "search/search_query.h"

class ConditionPage : public Dialog {
  public:
    void Show() { ShowWindow(Handle(), SW_SHOW); }
    void Hide() { ShowWindow(Handle(), SW_HIDE); }

    // "New condition".
    virtual void Reset() = 0;

    // Writes this page's part of the query. A page that could not be created restricts nothing.
    virtual void FillQuery(SearchQuery& query) const = 0;

    // Gives the page its place, and its fields what a wide screen has more.
    void Move(int x, int y, int width, int height) override;

  protected:
    ConditionPage(WindowObject* parentObject, const PropertySet& properties)
        : Dialog(parentObject, properties) {}

    // Wraps the controls and gives them their first contents.
    virtual void SetUpControls() = 0;
    // Widens the fields; the templates are made for the narrowest screen.
    virtual void LayOut() {}
    LRESULT OnInitDialog(MessageRecord& record) override;
    // A page cannot be cancelled.
    LRESULT OnWmCommand(MessageRecord& record) override;

    [[nodiscard]] HWND Item(int id) const { return DialogItem(*this, id); }
    LRESULT SendToItem(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    [[nodiscard]] bool IsChecked(int id) const;
};
