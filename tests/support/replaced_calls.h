#pragma once

// Puts another routine in the place of one of the seam's calls for as long as it lives:
//     Replaced noDelete(ce::fileCalls.deleteFile, [](const wchar_t*) -> BOOL { return FALSE; });

#include <type_traits>

template <typename Call>
class Replaced {
  public:
    Replaced(Call& inForce, std::type_identity_t<Call> replacement) : slot_(inForce), before_(inForce) {
        slot_ = replacement;
    }
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;
    ~Replaced() { slot_ = before_; }

    // What the replacement stands for.
    [[nodiscard]] Call Original() const { return before_; }

  private:
    Call& slot_;
    Call before_;
};
