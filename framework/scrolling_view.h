#pragma once

// A window that scrolls what is in it, and the scroll bars: a window's own two, and one that is a control.

#include "framework/container_window.h"
#include "framework/control.h"
#include "framework/scroll_arithmetic.h"

// One bar of a window: reads and writes it, and owns nothing. The bar is SB_HORZ or SB_VERT of a window, or
// SB_CTL of a scroll-bar control.
class ScrollBar {
  public:
    ScrollBar(HWND windowOfBar, int barOfWindow) : window_(windowOfBar), bar_(barOfWindow) {}

    [[nodiscard]] int Position() const;
    [[nodiscard]] ScrollRange Range() const;
    [[nodiscard]] int Page() const;
    [[nodiscard]] ScrollState State() const;

    // A position outside the range becomes the nearest one within.
    void SetPosition(int position, bool redraw = true) const;
    void SetRange(ScrollRange range, bool redraw = true) const;

  private:
    [[nodiscard]] SCROLLINFO Read(UINT mask) const;
    void Write(SCROLLINFO& info, bool redraw) const;

    HWND window_;
    int bar_;
};

// What the scroll message asks for, and the position of the box that it brings.
[[nodiscard]] ScrollRequest RequestOf(const MessageRecord& record);
[[nodiscard]] int ThumbOf(const MessageRecord& record);

// A scroll bar that is a control. The view that gets its scroll messages hands them back to it; it moves
// itself by steps of its own, and answers how far (the old position less the new).
class ScrollBarControl : public Control {
  public:
    static constexpr const wchar_t* ClassName = L"ScrollBar";
    ScrollBarControl(WindowObject* parent, PropertySet& properties);
    ScrollBarControl(WindowObject* parent, HWND handle);

    void SetSteps(ScrollSteps newSteps) { steps_ = newSteps; }
    [[nodiscard]] ScrollBar Bar() const { return {Handle(), SB_CTL}; }

  private:
    void TakeScrollMessages();
    LRESULT OnScroll(MessageRecord& record);

    ScrollSteps steps_;
};

// A window that scrolls its content, children and all. Its bars move by one pixel a line.
class ScrollingView : public ContainerWindow {
  public:
    // Ranges, positions, steps, thumb tracking and the class's icon come from the set.
    ScrollingView(WindowObject* parent, const wchar_t* title, PropertySet& properties);

    // How large the content is. The bars follow at the next change of the window's size.
    void SetContentSize(int width, int height);
    // Gives both bars the range that the content's size leaves.
    void Reclamp();

    // Whether the content follows the box of a bar while it is dragged.
    void SetThumbTracking(bool on) { thumbTracking_ = on; }

    // One of the view's own bars, SB_HORZ or SB_VERT.
    [[nodiscard]] ScrollBar Bar(int bar) const { return {Handle(), bar}; }
    // Moves the bar as the message asks; answers how far: the old position less the new.
    int Scroll(int bar, const MessageRecord& record);

  protected:
    virtual LRESULT OnWmHScroll(MessageRecord& record);
    virtual LRESULT OnWmVScroll(MessageRecord& record);

    // Moves the content and the children by so many pixels.
    virtual void ScrollContent(int x, int y);

    // For derived views; nothing here counts by them.
    [[nodiscard]] int LineStep() const { return lineStep_; }
    [[nodiscard]] int SecondStep() const { return secondStep_; }

  private:
    void SetUpBars(const PropertySet& properties);
    void RaiseScroll(EventCode code, int bar, MessageRecord& record);
    LRESULT OnHorizontalScroll(EventArguments& arguments);
    LRESULT OnVerticalScroll(EventArguments& arguments);

    int contentWidth_ = 0;
    int contentHeight_ = 0;
    int lineStep_;
    int secondStep_;
    bool thumbTracking_;
};
