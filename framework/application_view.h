#pragma once

// A top-level window: menu bar at the bottom, command bar, menu and accelerators, and a rebar and a status
// bar when asked for. It is the base of the main window.

#include "framework/application.h"
#include "framework/bars.h"
#include "framework/scrolling_view.h"

class ApplicationView : public ScrollingView, public MainView {
  public:
    // Makes the window and its bars from the set; with an application given it becomes its main view. A menu
    // bar that cannot be made leaves the view without bar and menu.
    ApplicationView(WindowObject* parent, const wchar_t* title, PropertySet& properties,
                    Application* application);
    ~ApplicationView() override;

    // The client area less the bars.
    [[nodiscard]] RECT LayoutRectangle() const override;

    // The main view is shown as the program was asked to start, any other normally.
    virtual void Show();
    bool PreTranslate(MSG& message) override;
    // The window is destroyed as at any other end.
    void EndWithoutMessages() override;

    // The menu bar's menu; null without a bar.
    [[nodiscard]] HMENU Menu() const { return menu_; }
    [[nodiscard]] WindowObject* MenuBar() const { return menuBar_.get(); }
    // Where buttons are added: the menu bar itself, in a view without a rebar.
    [[nodiscard]] WindowObject* CommandBar() const;

    // Appends a band to the rebar, which is made for the first one; returns its index, or -1.
    int AddBand(const REBARBANDINFOW& band);
    // Null without one.
    [[nodiscard]] Rebar* ViewRebar() const { return rebar_.get(); }
    [[nodiscard]] StatusBar* ViewStatusBar() const { return statusBar_.get(); }

  protected:
    LRESULT OnWmDestroy(MessageRecord& record) override;
    virtual LRESULT OnWmHelp(MessageRecord& record);
    virtual LRESULT OnWmSize(MessageRecord& record);
    virtual void ShowAbout() {}

    void ScrollContent(int x, int y) override;

  private:
    void SetSmallIcon(const PropertySet& properties);
    void CreateMenuBar(const PropertySet& properties);
    void CreateCommandBar();

    std::unique_ptr<WindowObject> menuBar_;
    std::unique_ptr<WindowObject> menuBarToolBar_;
    std::unique_ptr<Rebar> rebar_;
    std::unique_ptr<CommandBarInRebar> commandBar_;
    std::unique_ptr<StatusBar> statusBar_;
    HMENU menu_ = nullptr;
    HACCEL accelerators_ = nullptr;
    bool isMainView_;
};
