#pragma once

// One path of the program in the literal form that the system is asked with.

#include "platform/desktop/literal_path.h"

class SystemPath {
  public:
    // Asks the system for the current folder where the path does not say itself where it starts.
    explicit SystemPath(const wchar_t* path);

    // False, with the thread's last error set, for a path that is too long or has nowhere to start.
    [[nodiscard]] bool Fits() const { return fits_; }
    [[nodiscard]] const wchar_t* Text() const { return text_; }

  private:
    bool fits_;
    wchar_t text_[LiteralPathSize];
};
