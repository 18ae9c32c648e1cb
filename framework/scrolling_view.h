#pragma once

// A window that scrolls what is in it. Its bars move by one pixel a line; the content, children and all,
// follows them.

#include "framework/container_window.h"
#include "framework/scroll_bar.h"

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
