#pragma once

// A top-level window: menu bar at the bottom, command bar, menu and accelerators. It is the base of the main
// window.

#include "framework/application.h"
#include "framework/container_window.h"

class ApplicationView : public ContainerWindow, public MainView {
  public:
    // Makes the window and its bars from the set; with an application given it becomes its main view. A menu
    // bar that cannot be made leaves the view without bar and menu.
    ApplicationView(WindowObject* parent, const wchar_t* title, PropertySet& properties,
                    Application* application);
    ~ApplicationView() override;

    // The client area less the menu bar.
    [[nodiscard]] RECT LayoutRectangle() const override;

    // The main view is shown as the program was asked to start, any other normally.
    virtual void Show();
    bool PreTranslate(MSG& message) override;

    // The menu bar's menu; null without a bar.
    [[nodiscard]] HMENU Menu() const { return menu; }
    [[nodiscard]] WindowObject* MenuBar() const { return menuBar.get(); }
    // Where buttons are added: the menu bar itself, in a view without a rebar.
    [[nodiscard]] WindowObject* CommandBar() const { return menuBar.get(); }

  protected:
    LRESULT OnWmDestroy(MessageRecord& record) override;
    virtual LRESULT OnWmHelp(MessageRecord& record);
    virtual LRESULT OnWmSize(MessageRecord& record);
    virtual void ShowAbout() {}

  private:
    void SetSmallIcon(const PropertySet& properties);
    void CreateMenuBar(const PropertySet& properties);

    std::unique_ptr<WindowObject> menuBar;
    std::unique_ptr<WindowObject> menuBarToolBar;
    HMENU menu = nullptr;
    HACCEL accelerators = nullptr;
    bool isMainView;
};
