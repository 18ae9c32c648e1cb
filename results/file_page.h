#pragma once

// What the pages of the properties sheet share: the file, its icon and its name.

#include <span>

#include "framework/page_fit.h"
#include "framework/property_sheet.h"

class FilePage : public PropertySheetPage {
  public:
    // The text belongs to the caller and must outlive the sheet.
    void SetPath(const wchar_t* filePath) { path_ = filePath; }

    // Whether applying this page has tried to change something.
    [[nodiscard]] bool HasChanged() const { return changed_; }

  protected:
    FilePage(WindowObject* parent, const wchar_t* title, const wchar_t* templateName);

    [[nodiscard]] const wchar_t* Path() const { return path_; }

    // Shows the file's icon and display name. Returns whatever else was asked for.
    SHFILEINFOW ShowFile(UINT alsoAsked = 0);
    void HideControls(std::span<const int> ids);
    // The one-line texts, each following its label in the template.
    [[nodiscard]] virtual std::span<const int> Values() const = 0;
    // Widens the texts to the room that the sheet leaves them.
    virtual void LayOut();

    LRESULT OnWmNotify(MessageRecord& record) override;
    LRESULT OnWmDestroy(MessageRecord& record) override;

    void MarkChanged() { changed_ = true; }

  private:
    LRESULT OnDrawName(EventArguments& arguments);

    WholeTextTips tips_;
    bool changed_ = false;
    const wchar_t* path_ = L"";
};
