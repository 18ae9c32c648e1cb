#pragma once

// Fits the controls of a page to the room that its tab control gives it, and shows in tooltips what does not
// fit. The templates are made for the narrowest screen; a wider or higher page has room to spare.

#include <span>

#include "platform/system_types.h"

// Gives the control all that is on its right, up to a small margin from the page's edge.
void WidenToRightEdge(HWND page, int id);

// Moves the control there.
void MoveToRightEdge(HWND page, int id);

// Puts texts of one line, each of which has its label right before it in the order of the controls, into one
// column behind the widest label, and widens them to the page's edge. A text too long for that takes what its
// own label leaves.
void AlignBehindLabels(HWND page, std::span<const int> ids);

// Gives a text that is broken into lines the height that it needs, as far as what is below it can move down.
void GrowDown(HWND page, int id);

// Tooltips that show the whole of those texts of a page that are cut, while the pointer rests on them.
class WholeTextTips {
  public:
    WholeTextTips() = default;
    ~WholeTextTips() { Remove(); }
    WholeTextTips(const WholeTextTips&) = delete;
    WholeTextTips& operator=(const WholeTextTips&) = delete;

    // One for each of these statics whose text is cut. The texts are set, the statics have their places.
    void Add(HWND page, std::span<const int> ids);
    // All of them; to be called before the page goes.
    void Remove();

  private:
    [[nodiscard]] bool HasWindow(HWND page);
    void Add(HWND page, HWND control);

    HWND window_ = nullptr;
};
