#pragma once

// The registered file types, for the size page.

#include "conditions/file_type_list.h"
#include "results/file_type_table.h"

class RegisteredFileTypes final : public FileTypeList {
  public:
    [[nodiscard]] int Count() const override { return table_.Count(); }
    [[nodiscard]] const wchar_t* Description(int index) const override {
        return table_.At(index).description.c_str();
    }
    [[nodiscard]] const wchar_t* Extensions(int index) const override {
        return table_.At(index).extensions.c_str();
    }

  private:
    FileTypeTable table_;
};
