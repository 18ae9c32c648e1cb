#pragma once

// The application: the product's name, the split command line, the window map, the message loop and the wait
// cursor.

#include "framework/dispatch_tables.h"
#include "platform/ce_input.h"
#include "platform/system_types.h"

class Application;

// A top-level window that sees the message loop's messages before they are dispatched, as long as both it and
// the application exist.
class MainView {
  public:
    MainView() = default;
    MainView(const MainView&) = delete;
    MainView& operator=(const MainView&) = delete;
    // Returns true if it has consumed the message.
    virtual bool PreTranslate(MSG& message) = 0;
    // Called when the loop gets no more messages and is about to return: the last chance to save anything.
    virtual void EndWithoutMessages() {}
    virtual ~MainView();

  private:
    friend class Application;
    Application* servedBy_ = nullptr;
};

// There is one, on the stack of the run routine (or of a test), as long as there are window objects.
class Application {
  public:
    // The name and the words are kept, not copied.
    Application(const wchar_t* name, int wordCount, const wchar_t* const* words);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Runs the message loop until WM_QUIT and returns its wParam; 0 when the system gives no more messages.
    int Run();

    // Replaces the previous one; null for none.
    void SetMainView(MainView* view);
    [[nodiscard]] const wchar_t* Name() const { return name_; }
    [[nodiscard]] int WordCount() const { return wordCount_; }
    [[nodiscard]] const wchar_t* const* Words() const { return words_; }

    // The map of the one application, or null before it exists.
    [[nodiscard]] static WindowMap* Windows();

  private:
    void Handle(MSG& message);

    static Application* current;

    const wchar_t* name_;
    int wordCount_;
    const wchar_t* const* words_;
    MainView* mainView_ = nullptr;
    WindowMap windows_;
    ce::HeldKeys heldKeys_;
};

// Shows the wait cursor as long as the object lives.
class WaitCursor {
  public:
    WaitCursor();
    ~WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};
