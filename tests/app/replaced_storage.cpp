#include "tests/app/replaced_storage.h"

#include <cwchar>

namespace {

ReplacedStorage* current = nullptr;

bool ProgramMemory(ce::FreeAndTotal& bytes) {
    bytes = current->program;
    return current->answersMemory;
}

bool ObjectStore(ce::FreeAndTotal& bytes) {
    bytes = current->store;
    return current->answersMemory;
}

bool StorageCard(int index, wchar_t (&name)[MAX_PATH]) {
    if (index >= static_cast<int>(current->cards.size())) return false;
    std::wcscpy(name, current->cards[static_cast<std::size_t>(index)].name.c_str());
    return true;
}

bool DiskSpace(const wchar_t* name, ce::FreeAndTotal& bytes) {
    current->askedNames.emplace_back(name);
    for (const ReplacedStorage::Card& card : current->cards) {
        if (card.name != name) continue;
        bytes = card.bytes;
        return card.answers;
    }
    return false;
}

}  // namespace

ReplacedStorage::ReplacedStorage() : before_(ce::storageCalls) {
    current = this;
    ce::storageCalls = {ProgramMemory, ObjectStore, StorageCard, DiskSpace};
}

ReplacedStorage::~ReplacedStorage() {
    ce::storageCalls = before_;
    current = nullptr;
}
