#pragma once

// A top-level window: menu bar at the bottom, command bar, menu and accelerators, and a rebar and a status
// bar if asked for. The main window is derived from it.

#include "framework/application.h"
#include "framework/bars.h"
#include "framework/scrolling_view.h"
#include "platform/handles.h"

class ApplicationView : public ScrollingView, public MainView {
  public:
    // Creates the window and its bars from the set; if an application is given it becomes its main view. If
    // the menu bar cannot be created, the view has neither bar nor menu.
    ApplicationView(WindowObject* parent, const wchar_t* title, PropertySet& properties,
                    Application* application);
    ~ApplicationView() override;

    // The client area less the bars.
    [[nodiscard]] RECT LayoutRectangle() const override;

    // The main view is shown the way the program was asked to start, any other one normally.
    virtual void Show();
    bool PreTranslate(MSG& message) override;
    // The window is destroyed as at any other end.
    void EndWithoutMessages() override;

    // The menu bar's menu; null if there is no bar.
    [[nodiscard]] HMENU Menu() const { return menu_; }
    [[nodiscard]] WindowObject* MenuBar() const { return menuBar_.get(); }
    // Where buttons are added: in a view without a rebar, the menu bar itself.
    [[nodiscard]] WindowObject* CommandBar() const;

    // Appends a band to the rebar, which the first band creates; returns the band's index, or -1.
    int AddBand(const REBARBANDINFOW& band);
    // Null if there is none.
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
    UniqueIcon smallIcon_;
    HMENU menu_ = nullptr;
    HACCEL accelerators_ = nullptr;
    bool isMainView_;
};
