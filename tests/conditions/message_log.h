#pragma once

// What is sent to the windows of the calling thread while this object lives, before they get it.

#include <windows.h>

#include <string>
#include <vector>

struct SentMessage {
    HWND window;
    int controlId;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    std::wstring text;  // of DTM_SETFORMATW
    SYSTEMTIME time;    // of DTM_SETSYSTEMTIME
};

class MessageLog {
  public:
    // Keeps messages with these numbers alone. Only one such object may live at a time.
    explicit MessageLog(std::vector<UINT> messages);
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    [[nodiscard]] const std::vector<SentMessage>& All() const { return sent_; }
    // Those of one number to controls with this id, in their order.
    [[nodiscard]] std::vector<SentMessage> To(int controlId, UINT message) const;

  private:
    static LRESULT CALLBACK HookProcedure(int code, WPARAM wParam, LPARAM lParam);
    void Keep(const CWPSTRUCT& call);

    std::vector<UINT> wanted_;
    std::vector<SentMessage> sent_;
    HHOOK hook_;
};
