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
    // A system that is short of memory may give the next one again.
    constexpr int MostFailures = 20;
    for (int failures = 0; failures < MostFailures;) {
        const BOOL answer = GetMessageW(&message, nullptr, 0, 0);
        if (answer == 0) return static_cast<int>(message.wParam);
        failures = answer < 0 ? failures + 1 : 0;
        if (answer > 0) Handle(message);
    }
    if (mainView_ != nullptr) mainView_->EndWithoutMessages();
    return 0;
}

void Application::Handle(MSG& message) {
    if (mainView_ != nullptr && mainView_->PreTranslate(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

WaitCursor::WaitCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    ShowCursor(TRUE);
}

WaitCursor::~WaitCursor() {
    ShowCursor(FALSE);
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}
