#pragma once

// Tooltips that show the whole of those texts of a page that are cut, while the pointer rests on them.

#include <span>

#include "platform/system_types.h"

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
