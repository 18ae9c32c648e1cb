#pragma once

// What start-up leaves behind for the windows: the program context and the application object. And a plain
// window for a control or a page to stand in.

#include "base/program_context.h"
#include "framework/application.h"
#include "framework/container_window.h"

class TestWorld {
  public:
    // Windows made from here on speak this language and load this program's resources.
    explicit TestWorld(UiLanguage language = UiLanguage::English);
    ~TestWorld();
    TestWorld(const TestWorld&) = delete;
    TestWorld& operator=(const TestWorld&) = delete;

    [[nodiscard]] Application& TheApplication() { return application_; }

  private:
    ProgramContext before_;
    Application application_;
};

// A visible top-level window of 230 x 280 pixels.
class HostWindow {
  public:
    HostWindow();

    [[nodiscard]] ContainerWindow& Object() { return window_; }
    [[nodiscard]] HWND Handle() const { return window_.Handle(); }

  private:
    PropertySet properties_;
    ContainerWindow window_;
};
