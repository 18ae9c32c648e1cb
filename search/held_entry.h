#pragma once

// A directory record kept for later, without the unused room behind its name.

#include "base/object_list.h"
#include "platform/system_types.h"

class HeldEntry final : public ListObject {
  public:
    // Null when there is no memory.
    [[nodiscard]] static HeldEntry* Create(const WIN32_FIND_DATAW& entry);
    ~HeldEntry() override;

    [[nodiscard]] const wchar_t* Name() const;
    // Writes the record as it was.
    void CopyTo(WIN32_FIND_DATAW& entry) const;

  private:
    explicit HeldEntry(unsigned char* usedBytes) : used_(usedBytes) {}

    // The record up to the end of its name.
    unsigned char* used_;
};
