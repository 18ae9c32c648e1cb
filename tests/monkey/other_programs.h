#pragma once

// The programs that run beside the test's: what comes while this object lives was started by the hands.

#include <windows.h>

#include <set>

class OtherPrograms {
  public:
    OtherPrograms() : before_(Running()) {}

    void EndNewOnes() const;

  private:
    [[nodiscard]] static std::set<DWORD> Running();

    std::set<DWORD> before_;
};
