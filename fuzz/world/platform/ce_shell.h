#pragma once

// Of the shell, what the fit of a dialog needs.

namespace ce {

constexpr int MenuBarHeight = 26;

}  // namespace ce
