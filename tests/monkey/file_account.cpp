#include "tests/monkey/file_account.h"

#include <algorithm>

#include "tests/support/utf8.h"

namespace {

std::wstring NameOf(const std::wstring& path) {
    return path.substr(path.find_last_of(L'\\') + 1);
}

std::wstring FolderOf(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L'\\'));
}

bool StartsWith(const std::wstring& text, const std::wstring& start) {
    return text.compare(0, start.size(), start) == 0;
}

bool EndsWith(const std::wstring& text, const std::wstring& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

std::vector<std::string> FileAccount::Settle(const std::vector<JournalEntry>& journal,
                                             const DeviceEntries& after) {
    for (const JournalEntry& entry : journal)
        Take(entry);
    Compare(after);
    return complaints_;
}

void FileAccount::Take(const JournalEntry& entry) {
    const std::wstring& kind = entry[0];
    if (kind == L"delete") return TakeDelete(entry);
    if (kind == L"move") return TakeMove(entry);
    if (kind == L"attributes") return TakeAttributes(entry);
    if (kind == L"other") return Complain("a call that nobody asked for: " + Utf8(entry[1]), entry[2]);
    if (StartsWith(kind, L"own-")) return TakeOwnChange(entry);
    if (kind == L"start-menu") madeShortcuts_ = true;
    TakeQuestion(entry);
    TakeEnd(entry);
}

void FileAccount::TakeQuestion(const JournalEntry& entry) {
    const std::wstring& kind = entry[0];
    if (kind == L"dialog") {
        const std::wstring path = Path(entry[2]);
        if (entry[1] == L"question") {
            askedFile_ = path;
            saidYes_ = false;
        } else {
            (entry[1] == L"general" ? generalFile_ : shortcutFile_) = path;
            applied_ = false;
        }
    } else if (kind == L"yes") {
        shownQuestion_ = LowerCase(entry[1]);
        saidYes_ = true;
    } else if (kind == L"apply") {
        applied_ = true;
    } else if (kind == L"begin-edit") {
        editedFile_ = moveSource_ = Path(entry[1]);
        tookName_ = false;
    } else if (kind == L"end-edit") {
        typedName_ = entry[1];
        tookName_ = true;
    } else if (kind == L"end-edit-unchanged") {
        typedName_ = entry[1];
        tookName_ = typedName_.empty() || LowerCase(typedName_) == NameOf(editedFile_);
    }
}

void FileAccount::TakeDelete(const JournalEntry& entry) {
    const std::wstring path = Path(entry[1]);
    if (applied_ && path == shortcutFile_) {
        rewritten_.push_back(path);
    } else if (!saidYes_ || path != askedFile_ ||
               (shownQuestion_ != L"?" &&
                shownQuestion_.find(L"'" + NameOf(path) + L"'") == std::wstring::npos)) {
        Complain("a file was deleted that nobody gave up", entry[1]);
    }
    saidYes_ = false;
    if (entry[2] == L"1") Remove(path);
}

// A new spelling of the same name may take two steps, by way of a third name.
void FileAccount::TakeMove(const JournalEntry& entry) {
    const std::wstring from = Path(entry[1]);
    const std::wstring to = Path(entry[2]);
    const bool meant = to == Path(FolderOf(editedFile_) + L"\\" + typedName_) ||
                       StartsWith(NameOf(to), L"rename~") || to == editedFile_;
    if (!tookName_ || from != moveSource_ || !meant)
        Complain("a file got another name than was typed, from " + Utf8(entry[1]), entry[2]);
    if (entry[3] != L"1") return;
    moveSource_ = to;
    Move(from, to);
}

void FileAccount::TakeAttributes(const JournalEntry& entry) {
    const std::wstring path = Path(entry[1]);
    if (!applied_ || path != generalFile_) Complain("attributes were set that nobody chose", entry[1]);
    const auto found = entries_.find(path);
    if (entry[3] == L"1" && found != entries_.end() && !found->second.folder)
        found->second.readOnly = (std::stoul(entry[2]) & FILE_ATTRIBUTE_READONLY) != 0;
}

void FileAccount::TakeOwnChange(const JournalEntry& entry) {
    const std::wstring path = entry.size() > 1 ? Path(entry[1]) : L"";
    if (entry[0] == L"own-delete") Remove(path);
    if (entry[0] == L"own-move") Move(path, Path(entry[2]));
    if (entry[0] == L"own-write") {
        DeviceEntry made;
        made.path = entry[1];
        made.content.assign(entry[2].begin(), entry[2].end());
        entries_[path] = made;
    }
    if (entry[0] == L"own-attributes" && entries_.contains(path))
        entries_[path].readOnly = (std::stoul(entry[2]) & FILE_ATTRIBUTE_READONLY) != 0;
    if (entry[0] == L"own-end") mayEnd_ = true;
}

void FileAccount::TakeEnd(const JournalEntry& entry) {
    if (entry[0] == L"exit" || entry[0] == L"uninstall") mayEnd_ = true;
    if (entry[0] == L"close" && !mayEnd_) Complain("the program ends, and nobody asked it to", L"");
}

void FileAccount::Remove(const std::wstring& path) {
    if (entries_.erase(path) == 0) Complain("a file was deleted that was not there", path);
}

void FileAccount::Move(const std::wstring& from, const std::wstring& to) {
    DeviceEntries moved;
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        const bool below = entry->first == from || StartsWith(entry->first, from + L"\\");
        if (below) {
            moved[to + entry->first.substr(from.size())] = entry->second;
            entry = entries_.erase(entry);
        } else {
            ++entry;
        }
    }
    if (moved.empty()) Complain("a file was moved that was not there", from);
    for (const auto& [path, entry] : moved) {
        if (!entries_.emplace(path, entry).second) Complain("a file was moved over another one", path);
    }
}

// Shortcuts are the only files that the program writes.
bool FileAccount::MayHaveCome(const std::wstring& path) const {
    const bool inStartMenu = path.find(L"\\start menu\\") != std::wstring::npos ||
                             path.find(L"\\ｽﾀｰﾄ ﾒﾆｭｰ\\") != std::wstring::npos;
    return (madeShortcuts_ && inStartMenu && EndsWith(path, L".lnk")) ||
           std::find(rewritten_.begin(), rewritten_.end(), path) != rewritten_.end();
}

void FileAccount::Compare(const DeviceEntries& after) {
    for (const auto& [path, entry] : after) {
        const auto expected = entries_.find(path);
        if (MayHaveCome(path)) continue;
        if (expected == entries_.end()) {
            Complain("a file came out of nowhere", path);
        } else if (expected->second.content != entry.content || expected->second.folder != entry.folder) {
            Complain("a file has another content", path);
        } else if (expected->second.readOnly != entry.readOnly) {
            Complain("a file is read-only, or is it no longer, against all that was done", path);
        }
    }
    for (const auto& [path, entry] : entries_) {
        if (!after.contains(path) && !MayHaveCome(path)) Complain("a file is lost", path);
    }
}

std::wstring FileAccount::Path(const std::wstring& path) {
    const std::optional<std::wstring> canonical = device_.Canonical(path);
    if (!canonical) Complain("the program reached off the device", path);
    return canonical.value_or(L"?");
}

void FileAccount::Complain(const std::string& text, const std::wstring& path) {
    complaints_.push_back(text + ": '" + Utf8(path) + "'");
}
