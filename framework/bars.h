#pragma once

// The bars that a view may ask for beside its menu bar: a rebar with a command bar in it, and a status bar.

#include "framework/control.h"

class Bar : public Control {
  public:
    // Whether the bar takes up room, whether or not the view itself is shown yet.
    [[nodiscard]] bool TakesPlace() const;

  protected:
    Bar(WindowObject& owner, const wchar_t* className, PropertySet properties)
        : Control(&owner, className, properties) {}
};

// A tool bar whose buttons raise their commands like a menu.
class CommandBarInRebar : public Bar {
  public:
    static constexpr const wchar_t* ClassName = L"ToolbarWindow32";
    explicit CommandBarInRebar(WindowObject& owner);

    [[nodiscard]] NativeCodeTable NativeCodes() const override;
    // The bar as one band of a rebar.
    [[nodiscard]] REBARBANDINFOW AsBand() const;
};

class Rebar : public Bar {
  public:
    static constexpr const wchar_t* ClassName = L"ReBarWindow32";
    explicit Rebar(WindowObject& owner);

    // Appends a band; returns its index, or -1 if the rebar refuses it.
    int AddBand(REBARBANDINFOW band);
    // Moves the bar to the top of the owner's client area, or to its bottom, above the menu bar.
    void Place(bool atTop);
    [[nodiscard]] bool IsAtTop() const { return isAtTop_; }
    [[nodiscard]] int BarHeight() const;

  private:
    int bandCount_ = 0;
    bool isAtTop_ = false;
};

class StatusBar : public Bar {
  public:
    static constexpr const wchar_t* ClassName = L"msctls_statusbar32";
    StatusBar(WindowObject& owner, bool aboveRebar);

    // Shows the text in the first part, without a border.
    void SetText(const wchar_t* text);
    [[nodiscard]] int BarHeight() const;
};
