#include "framework/application.h"

Application* Application::current = nullptr;

Application::Application(const wchar_t* productName, int count, const wchar_t* const* splitWords)
    : name_(productName), wordCount_(count), words_(splitWords) {
    current = this;
}

Application::~Application() {
    SetMainView(nullptr);
    current = nullptr;
}

MainView::~MainView() {
    if (servedBy_ != nullptr) servedBy_->SetMainView(nullptr);
}

void Application::SetMainView(MainView* view) {
    if (mainView_ != nullptr) mainView_->servedBy_ = nullptr;
    mainView_ = view;
    if (view == nullptr) return;
    if (view->servedBy_ != nullptr) view->servedBy_->mainView_ = nullptr;
    view->servedBy_ = this;
}

WindowMap* Application::Windows() {
    return current != nullptr ? &current->windows_ : nullptr;
}

int Application::Run() {
    MSG message{};
    // A failed GetMessageW answers -1, which is no reason to go on either.
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (mainView_ != nullptr && mainView_->PreTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

WaitCursor::WaitCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    ShowCursor(TRUE);
}

WaitCursor::~WaitCursor() {
    ShowCursor(FALSE);
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}
