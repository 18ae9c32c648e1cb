#pragma once

// The bars that a view may ask for beside its menu bar: a rebar with a command bar in it, and a status bar.

#include "framework/control.h"

class Bar : public Control {
  public:
    // Whether the bar takes its place, be the view itself shown or not yet.
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

    // Appends a band; returns its index, counted up from 0, or -1 when the rebar refuses it.
    int AddBand(REBARBANDINFOW band);
    // At the bottom of the owner's client area, above the menu bar, or at its top; as large as it is.
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

    // In the first part, without a border.
    void SetText(const wchar_t* text);
    [[nodiscard]] int BarHeight() const;
};
