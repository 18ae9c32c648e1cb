#include "framework/application.h"

Application* Application::current = nullptr;

Application::Application(const wchar_t* productName, int count, const wchar_t* const* splitWords)
    : name(productName), wordCount(count), words(splitWords) {
    current = this;
}

Application::~Application() {
    SetMainView(nullptr);
    current = nullptr;
}

MainView::~MainView() {
    if (servedBy != nullptr) servedBy->SetMainView(nullptr);
}

void Application::SetMainView(MainView* view) {
    if (mainView != nullptr) mainView->servedBy = nullptr;
    mainView = view;
    if (view == nullptr) return;
    if (view->servedBy != nullptr) view->servedBy->mainView = nullptr;
    view->servedBy = this;
}

WindowMap* Application::Windows() {
    return current != nullptr ? &current->windows : nullptr;
}

int Application::Run() {
    MSG message{};
    // A failed GetMessageW answers -1, which is no reason to go on either.
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (mainView != nullptr && mainView->PreTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
