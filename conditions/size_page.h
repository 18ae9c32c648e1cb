#pragma once

// The third page: file type and size.

#include "conditions/condition_page.h"
#include "conditions/file_type_list.h"

class SizePage : public ConditionPage {
  public:
    // The types belong to the caller and must outlive the page; null for none.
    SizePage(WindowObject* parent, const FileTypeList* fileTypes);

    void Reset() override;
    void FillQuery(SearchQuery& query) const override;

  protected:
    void SetUpControls() override;
    void LayOut() override;

  private:
    void FillFileTypes();

    const FileTypeList* fileTypes_;
};
