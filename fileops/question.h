#pragma once

// A question before something is deleted or replaced: what it looks like, and what can be answered.

#include "platform/system_types.h"

// The id of the button that ended the dialog.
enum class ConfirmResult { Cancel = 2, Yes = 6, No = 7, YesToAll = 20 };

// A template, and the routine that fills in its title, icon and texts. An icon that the routine sets is freed
// by the dialog. Template name and subject are not copied and must outlive the question.
class Question {
  public:
    template <class Subject>
    Question(const wchar_t* templateName, void (*fill)(HWND dialog, const Subject* subject),
             const Subject* subject)
        : templateName_(templateName),
          fill_(reinterpret_cast<ErasedRoutine>(fill)),
          subject_(subject),
          call_(&Call<Subject>) {}

    [[nodiscard]] const wchar_t* TemplateName() const { return templateName_; }
    void Fill(HWND dialog) const { call_(fill_, dialog, subject_); }

  private:
    using ErasedRoutine = void (*)();

    template <class Subject>
    static void Call(ErasedRoutine fill, HWND dialog, const void* subject) {
        reinterpret_cast<void (*)(HWND, const Subject*)>(fill)(dialog, static_cast<const Subject*>(subject));
    }

    const wchar_t* templateName_;
    ErasedRoutine fill_;
    const void* subject_;
    void (*call_)(ErasedRoutine fill, HWND dialog, const void* subject);
};

// The templates, in the user's language.
[[nodiscard]] const wchar_t* YesNoTemplate();                // a single file delete
[[nodiscard]] const wchar_t* YesAllNoCancelTemplate();       // file delete of many, folder delete and replace
[[nodiscard]] const wchar_t* FileReplaceTemplate();          // a single file replace
[[nodiscard]] const wchar_t* MultipleFileReplaceTemplate();  // file replace of many
