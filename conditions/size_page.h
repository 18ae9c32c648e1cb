#pragma once

// The third page: file type and size.

#include "conditions/condition_page.h"
#include "conditions/file_type_list.h"
#include "search/date_and_size.h"

class SizePage : public ConditionPage {
  public:
    // The types stay the caller's and outlive the page; null for none.
    SizePage(WindowObject* parent, const FileTypeList* fileTypes);

    void Reset() override;

    // The selected index, and the selected entry's extensions; empty when nothing is selected.
    [[nodiscard]] int TypeIndex() const;
    void TypeExtensions(wchar_t (&text)[MAX_PATH]) const;

    SizeAnswer SizeBound(std::uint32_t& bound) const;

  protected:
    void SetUpControls() override;
    void LayOut() override;

  private:
    void FillFileTypes();

    const FileTypeList* fileTypes_;
};
