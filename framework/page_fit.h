#pragma once

// Fits the controls of a page to the size that its tab control gives it, and shows texts that are still cut
// in tooltips. The templates are made for the narrowest screen; a wider or higher page has room to spare.

#include <span>

#include "platform/system_types.h"

// Widens the control up to a small margin from the page's right edge.
void WidenToRightEdge(HWND page, int id);

// Moves the control to that margin.
void MoveToRightEdge(HWND page, int id);

// Aligns one-line texts in a column behind the widest label and widens them to the page's edge. The label of
// each is the control before it. A text too long for its column starts right behind its own label.
void AlignBehindLabels(HWND page, std::span<const int> ids);

// Makes a wrapped text as high as it needs, as far as the controls below it can move down.
void GrowDown(HWND page, int id);

// Tooltips that show the whole text of the statics that are cut, while the pointer rests on them.
class WholeTextTips {
  public:
    WholeTextTips() = default;
    ~WholeTextTips() { Remove(); }
    WholeTextTips(const WholeTextTips&) = delete;
    WholeTextTips& operator=(const WholeTextTips&) = delete;

    // Adds one for each of these statics whose text is cut. Call when their texts and places are final.
    void Add(HWND page, std::span<const int> ids);
    // Removes all of them. Call before the page is destroyed.
    void Remove();

  private:
    [[nodiscard]] bool HasWindow(HWND page);
    void Add(HWND page, HWND control);

    HWND window_ = nullptr;
};
