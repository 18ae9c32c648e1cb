#include "tests/monkey/shared_journal.h"

#include "tests/support/driver_error.h"
#include "tests/support/probe/probe_protocol.h"

SharedJournal::SharedJournal() {
    const std::wstring name = L"Local\\QuorinJournal-" + std::to_wstring(GetCurrentProcessId());
    section_ = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(probe::Journal),
                                  name.c_str());
    mutex_ = CreateMutexW(nullptr, FALSE, (name + probe::JournalMutexSuffix).c_str());
    journal_ = static_cast<probe::Journal*>(
        MapViewOfFile(section_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(probe::Journal)));
    if (journal_ == nullptr || mutex_ == nullptr) throw DriverError("there is no section for the journal");
    journal_->ownerId = GetCurrentProcessId();
    SetEnvironmentVariableW(probe::JournalVariable, name.c_str());
}

SharedJournal::~SharedJournal() {
    SetEnvironmentVariableW(probe::JournalVariable, nullptr);
    UnmapViewOfFile(journal_);
    CloseHandle(mutex_);
    CloseHandle(section_);
}

void SharedJournal::Empty() {
    Lock();
    journal_->length = 0;
    journal_->isFull = FALSE;
    Unlock();
}

void SharedJournal::Note(std::initializer_list<std::wstring_view> fields) {
    Note(fields, [] { return true; });
}

std::vector<JournalEntry> SharedJournal::Entries() {
    std::vector<JournalEntry> entries;
    JournalEntry entry;
    std::wstring field;
    Lock();
    const std::wstring_view text(journal_->text, static_cast<std::size_t>(journal_->length));
    for (const wchar_t unit : text) {
        if (unit == probe::RecordEnd) {
            entries.push_back(entry);
            entry.clear();
        } else if (unit == probe::FieldEnd) {
            entry.push_back(field);
            field.clear();
        } else {
            field += unit;
        }
    }
    const bool full = journal_->isFull != FALSE;
    Unlock();
    if (full) throw DriverError("the journal is too short for what the program did");
    return entries;
}

bool SharedJournal::Has(std::wstring_view kind) {
    for (const JournalEntry& entry : Entries()) {
        if (entry[0] == kind) return true;
    }
    return false;
}
