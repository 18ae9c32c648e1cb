#pragma once

// Writes fields and records of an answer into the exchange; what does not fit marks it truncated.

#include <cwchar>

#include "tests/support/probe/probe_protocol.h"

namespace probe {

class AnswerWriter {
  public:
    explicit AnswerWriter(Exchange& exchange) : target_(exchange) {
        target_.length = 0;
        target_.truncated = FALSE;
    }

    AnswerWriter& Text(const wchar_t* text) {
        for (const wchar_t* unit = text; *unit != L'\0'; ++unit)
            Put(*unit);
        Put(FieldEnd);
        return *this;
    }

    AnswerWriter& Number(long long number) {
        wchar_t digits[32];
        _snwprintf(digits, 31, L"%lld", number);
        digits[31] = L'\0';
        return Text(digits);
    }

    AnswerWriter& Rectangle(const RECT& rectangle) {
        return Number(rectangle.left).Number(rectangle.top).Number(rectangle.right).Number(rectangle.bottom);
    }

    void End() { Put(RecordEnd); }

  private:
    void Put(wchar_t unit) {
        if (target_.length < AnswerCapacity) {
            target_.answer[target_.length++] = unit;
        } else {
            target_.truncated = TRUE;
        }
    }

    Exchange& target_;
};

}  // namespace probe
