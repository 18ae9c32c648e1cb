#pragma once

// A window that scrolls its content, and scroll bars: a window's own two, and those that are controls.

#include "framework/container_window.h"
#include "framework/control.h"
#include "framework/scroll_arithmetic.h"

// Reads and writes one scroll bar: SB_HORZ or SB_VERT of a window, or SB_CTL of a scroll-bar control. It owns
// nothing.
class ScrollBar {
  public:
    ScrollBar(HWND windowOfBar, int barOfWindow) : window_(windowOfBar), bar_(barOfWindow) {}

    [[nodiscard]] int Position() const;
    [[nodiscard]] ScrollRange Range() const;
    [[nodiscard]] int Page() const;
    [[nodiscard]] ScrollState State() const;

    // A position outside the range becomes the nearest one inside it.
    void SetPosition(int position, bool redraw = true) const;
    void SetRange(ScrollRange range, bool redraw = true) const;

  private:
    [[nodiscard]] SCROLLINFO Read(UINT mask) const;
    void Write(SCROLLINFO& info, bool redraw) const;

    HWND window_;
    int bar_;
};

// What a scroll message asks for, and the position of the scroll box in it.
[[nodiscard]] ScrollRequest RequestOf(const MessageRecord& record);
[[nodiscard]] int ThumbOf(const MessageRecord& record);

// A scroll bar that is a control. The view receives its scroll messages and hands them back; the control
// moves by steps of its own and returns how far it moved: the old position minus the new.
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

    // Sets the size of the content. The bars follow when the window changes its size.
    void SetContentSize(int width, int height);
    // Sets both bars' ranges from the sizes of content and window.
    void Reclamp();

    // Whether the content follows the scroll box while it is dragged.
    void SetThumbTracking(bool on) { thumbTracking_ = on; }

    // One of the view's own bars, SB_HORZ or SB_VERT.
    [[nodiscard]] ScrollBar Bar(int bar) const { return {Handle(), bar}; }
    // Moves the bar as the message asks. Returns how far it moved: the old position minus the new.
    int Scroll(int bar, const MessageRecord& record);

  protected:
    virtual LRESULT OnWmHScroll(MessageRecord& record);
    virtual LRESULT OnWmVScroll(MessageRecord& record);

    // Moves the content and the children by this many pixels.
    virtual void ScrollContent(int x, int y);

    // For derived views; this class does not use them.
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
