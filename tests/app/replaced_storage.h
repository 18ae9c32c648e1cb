#pragma once

// A device with the memory and the storage cards that a test gives it, for as long as it lives.

#include <string>
#include <vector>

#include "platform/ce_system.h"

class ReplacedStorage {
  public:
    struct Card {
        std::wstring name;
        ce::FreeAndTotal bytes;
        bool answers;
    };

    ReplacedStorage();
    ~ReplacedStorage();
    ReplacedStorage(const ReplacedStorage&) = delete;
    ReplacedStorage& operator=(const ReplacedStorage&) = delete;

    ce::FreeAndTotal program = {4096 * 1024, 16384 * 1024};
    ce::FreeAndTotal store = {8192 * 1024, 16384 * 1024};
    bool answersMemory = true;
    std::vector<Card> cards;
    // The cards whose sizes were asked for, by name.
    std::vector<std::wstring> askedNames;

  private:
    ce::StorageCalls before_;
};
