// File operations over trees in memory: whatever the tree, the answers, the failures and the moment of Stop,
// nothing is changed that nobody agreed to, and no content is lost.
// Longest input: 256 bytes.

#include <optional>
#include <set>

#include "fileops/dos_time.h"
#include "fileops/file_operation.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/world/files_in_memory.h"
#include "fuzz/world/made_up_user.h"

namespace {

using Paths = std::vector<std::wstring>;

// Whether the path is the folder or lies in it; both folded.
bool IsIn(const std::wstring& path, const std::wstring& folder) {
    if (path == folder || folder == L"\\") return true;
    return path.compare(0, folder.size(), folder) == 0 && path[folder.size()] == L'\\';
}

// Answers, fails and stops as the input says, and looks at every change.
class Watcher final : public FilesInMemory, public MadeUpUser {
  public:
    explicit Watcher(FuzzInput& input) : input_(input) { SetUser(this); }
    ~Watcher() override { SetUser(nullptr); }

    void Watch(FileOperation& run, const Paths& sourcePaths, const std::wstring& destinationPath) {
        operation_ = &run;
        for (const std::wstring& path : sourcePaths)
            sources_.push_back(Folded(path));
        destination_ = Folded(destinationPath);
        stopAt_ = input_.Byte();
        failAt_ = input_.Byte();
        before = All();
    }

    // What was wrong with the first change that was; null for none.
    const char* broken = nullptr;
    bool ended = false;
    bool refused = false;
    bool failed = false;
    int errors = 0;
    std::set<int> destroyed;
    std::set<std::wstring> changedPaths;
    std::map<std::wstring, FileInMemory> before;

  private:
    ConfirmResult Answer(const std::wstring& path, bool offersYesToAll) override {
        static constexpr ConfirmResult Answers[] = {ConfirmResult::Yes, ConfirmResult::Yes,
                                                    ConfirmResult::Yes, ConfirmResult::YesToAll,
                                                    ConfirmResult::No,  ConfirmResult::Cancel};
        answered_ = Folded(path);
        answer_ = input_.OneOf(Answers);
        if (answer_ == ConfirmResult::YesToAll && !offersYesToAll) answer_ = ConfirmResult::Yes;
        refused = refused || answer_ == ConfirmResult::No;
        ended = ended || answer_ == ConfirmResult::Cancel;
        return answer_;
    }
    void ReadError() override { ++errors; }
    void HaveAMoment() override {
        if (++moments_ != stopAt_) return;
        operation_->Stop();
        ended = true;
    }

    void Expect(bool holds, const char* rule) {
        if (!holds && broken == nullptr) broken = rule;
    }

    bool Does(FileOperationKind kind) const { return operation_->operation == kind; }
    bool Copies() const { return Does(FileOperationKind::Copy) || Does(FileOperationKind::Update); }
    bool IsInSources(const std::wstring& path) const {
        return std::any_of(sources_.begin(), sources_.end(),
                           [&](const auto& source) { return IsIn(path, source); });
    }
    bool IsInDestination(const std::wstring& path) const { return IsIn(path, destination_); }

    // Somebody said Yes to just this path, or wants no questions. A move does not destroy without one.
    bool IsAgreedTo(const std::wstring& path) const {
        const bool byAnswer =
            answered_ == path && (answer_ == ConfirmResult::Yes || answer_ == ConfirmResult::YesToAll);
        return byAnswer || (!operation_->confirm && !Does(FileOperationKind::Move));
    }

    bool HasLinkBetween(const std::wstring& root, const std::wstring& path) const {
        for (std::size_t end = root.size(); end < path.size(); ++end) {
            const FileInMemory* const above = path[end] == L'\\' ? Find(path.substr(0, end)) : nullptr;
            if (above != nullptr && above->IsLink()) return true;
        }
        return false;
    }

    // Through a link that stands in what is removed, something elsewhere would be.
    bool IsBehindLink(const std::wstring& path) const {
        const Paths roots = Does(FileOperationKind::Exclude) ? Paths{destination_} : sources_;
        return std::none_of(roots.begin(), roots.end(), [&](const std::wstring& root) {
            return IsIn(path, root) && !HasLinkBetween(root, path);
        });
    }

    void ExpectDestruction(const std::wstring& path) {
        const FileInMemory* const file = Find(path);
        Expect(IsAgreedTo(path), "a file is destroyed only where somebody agreed");
        if (file != nullptr) destroyed.insert(file->content);
        changedPaths.insert(path);
    }

    void ExpectCopy(const std::wstring& path, const std::wstring& target) {
        Expect(Copies(), "only a copy or an update copies");
        Expect(IsInSources(path), "a source is copied");
        Expect(IsInDestination(target), "into the destination");
        if (Find(target) == nullptr) return;
        ExpectDestruction(target);
        const bool isNewer = Find(path) != nullptr && Find(path)->written / 2 > Find(target)->written / 2;
        Expect(!Does(FileOperationKind::Update) || isNewer, "an update replaces what is older");
    }

    void ExpectDelete(const std::wstring& path) {
        Expect(!Copies(), "a copy deletes nothing");
        Expect(Does(FileOperationKind::Delete) ? IsInSources(path) : IsInDestination(path),
               "what is deleted was meant");
        Expect(Does(FileOperationKind::Move) || !IsBehindLink(path), "nothing is deleted through a link");
        if (Find(path) != nullptr) ExpectDestruction(path);
    }

    void ExpectRemoval(const std::wstring& path) {
        Expect(!Copies(), "a copy removes nothing");
        Expect(Does(FileOperationKind::Exclude) ? IsInDestination(path) : IsInSources(path),
               "what is removed was meant");
        Expect(!IsBehindLink(path), "nothing is removed through a link");
    }

    void ExpectChange(Change change, const std::wstring& path, const std::wstring& target) {
        Expect(!ended, "nothing is changed once the run has ended");
        Expect(path.size() < MAX_PATH && target.size() < MAX_PATH, "no path is longer than a path may be");
        switch (change) {
            case Change::Attributes:
                return Expect(Find(path) == nullptr || IsAgreedTo(path),
                              "attributes change where somebody agreed");
            case Change::Delete:
                return ExpectDelete(path);
            case Change::Copy:
                return ExpectCopy(path, target);
            case Change::Move:
                Expect(Does(FileOperationKind::Move), "only a move moves");
                return Expect(IsInSources(path) && IsInDestination(target),
                              "from a source into the destination");
            case Change::CreateFolder:
                return Expect(IsInDestination(path) || IsIn(destination_, path),
                              "a folder is made on the way there");
            case Change::RemoveFolder:
                return ExpectRemoval(path);
        }
    }

    DWORD Judge(Change change, const std::wstring& path, const std::wstring& target, DWORD error) override {
        static constexpr DWORD Codes[] = {ERROR_ACCESS_DENIED, ERROR_DISK_FULL, ERROR_CRC,
                                          ERROR_SHARING_VIOLATION, 12345};
        if (error == 0 && ++changes_ == failAt_) error = Codes[changes_ % std::size(Codes)];
        // What fails of itself destroys nothing; what is asked for has to be right all the same.
        const std::set<int> destroyedBefore = destroyed;
        const std::set<std::wstring> changedBefore = changedPaths;
        ExpectChange(change, Folded(path), Folded(target));
        if (error == 0) return 0;
        destroyed = destroyedBefore;
        changedPaths = changedBefore;
        const bool goesOn =
            change == Change::Attributes || (change == Change::Delete && Does(FileOperationKind::Move));
        if (!goesOn) ended = true;
        failed = true;
        return error;
    }

    FuzzInput& input_;
    FileOperation* operation_ = nullptr;
    Paths sources_;
    std::wstring destination_;
    std::wstring answered_;
    ConfirmResult answer_ = ConfirmResult::Cancel;
    int moments_ = 0, stopAt_ = 0;
    std::size_t changes_ = 0, failAt_ = 0;
};

std::wstring SomeName(FuzzInput& input) {
    static constexpr const wchar_t* Names[] = {L"a", L"A", L"b", L"c.txt", L"d.", L"x y", L"aa"};
    const std::size_t choice = input.UpTo(15);
    return choice == 15 ? std::wstring(120, L'n') : Names[choice % std::size(Names)];
}

std::wstring Below(const std::wstring& folder, const std::wstring& name) {
    return (folder == L"\\" ? folder : folder + L'\\') + name;
}

// What stands behind a link belongs to somebody else, and is seen through it.
Paths MakeTree(FuzzInput& input, FilesInMemory& files) {
    Paths paths = {L"\\"};
    Paths folders = paths;
    int content = 0;
    for (std::size_t count = input.UpTo(20); count > 0; --count) {
        const std::wstring path = Below(folders[input.UpTo(folders.size() - 1)], SomeName(input));
        const std::size_t kind = input.UpTo(15);
        if (files.Find(path) != nullptr || path.size() >= MAX_PATH - 2) continue;
        paths.push_back(path);
        if (kind < 8) {
            const DWORD readOnly = kind == 0 ? FILE_ATTRIBUTE_READONLY : 0;
            files.AddFile(path, ++content, input.Byte(), FILE_ATTRIBUTE_ARCHIVE | readOnly);
        } else {
            files.AddFolder(path, kind == 8 ? FILE_ATTRIBUTE_REPARSE_POINT : 0);
            folders.push_back(path);
        }
    }
    return paths;
}

// Mostly one that is there, or one below it that is not.
std::wstring SomePath(FuzzInput& input, const Paths& paths) {
    const std::wstring path = paths[input.UpTo(paths.size() - 1)];
    const std::size_t kind = input.UpTo(7);
    if (kind == 0) return Below(path, SomeName(input));
    if (kind == 1) return Below(path, SomeName(input) + L"\\" + SomeName(input));
    return kind == 2 ? path + L'\\' : path;
}

// As the operation keeps it.
std::wstring WithoutEnd(std::wstring path) {
    while (path.size() > 1 && path.back() == L'\\')
        path.pop_back();
    return path;
}

void RequireEverythingThere(const Watcher& watcher, FileOperationKind kind) {
    std::set<int> contents;
    for (const auto& [path, file] : watcher.All())
        contents.insert(file.content);
    for (const auto& [path, file] : watcher.before) {
        if (file.IsFolder()) continue;
        Require(contents.contains(file.content) || watcher.destroyed.contains(file.content),
                "no content is lost");
        if (kind == FileOperationKind::Move || watcher.changedPaths.contains(path)) continue;
        const FileInMemory* const now = watcher.Find(path);
        Require(now != nullptr && now->content == file.content, "what was not to be changed is what it was");
    }
}

// Into an empty folder everything is copied or moved that has room there; what is deleted is gone.
void RequireWorkDone(const Watcher& watcher, FileOperationKind kind, const std::wstring& source,
                     const std::wstring& destination) {
    if (kind == FileOperationKind::Delete) {
        Require(watcher.Find(source) == nullptr, "what was to be deleted is gone");
        return;
    }
    if (kind != FileOperationKind::Copy && kind != FileOperationKind::Move) return;
    const std::size_t nameAt = source.rfind(L'\\');
    const FileInMemory* link = nullptr;
    for (const auto& [path, file] : watcher.before) {
        if (!IsIn(path, FilesInMemory::Folded(source))) continue;
        // In their order a link comes before what is seen through it.
        const bool isSeenThrough = link != nullptr && IsIn(path, FilesInMemory::Folded(link->path));
        if (file.IsLink() && !isSeenThrough) link = &file;
        if (file.IsLink() || isSeenThrough) continue;
        const std::wstring target = (destination == L"\\" ? L"" : destination) + file.path.substr(nameAt);
        if (target.size() >= MAX_PATH) continue;
        const FileInMemory* const there = watcher.Find(target);
        Require(there != nullptr && there->content == file.content, "everything is in the destination");
    }
}

}  // namespace

void FuzzFileOperations(FuzzInput& input) {
    Watcher files(input);
    const Paths paths = MakeTree(input, files);
    FileOperation operation(nullptr);
    operation.operation = static_cast<FileOperationKind>(input.UpTo(4));
    operation.confirm = input.UpTo(3) != 0;
    operation.multiple = input.UpTo(3) != 0;
    const std::wstring destination = SomePath(input, paths);
    if (!operation.SetDestination(destination.c_str())) return;
    Paths sources;
    for (std::size_t count = 1 + input.UpTo(5) / 4; count > 0; --count) {
        const std::wstring source = SomePath(input, paths);
        if (!operation.AddSource(source.c_str())) return;
        sources.push_back(WithoutEnd(source));
    }
    const std::wstring target = WithoutEnd(destination);
    const FileInMemory* const folder = files.Find(target);
    const std::wstring inside = FilesInMemory::Folded(Below(target, L""));
    const auto first = files.All().lower_bound(inside);
    const bool isEmpty = first == files.All().end() || first->first.compare(0, inside.size(), inside) != 0;
    const bool goesIntoEmptyFolder = folder != nullptr && folder->IsFolder() && isEmpty;
    files.Watch(operation, sources, target);

    const INT_PTR result = operation.RunModal();
    Require(files.broken == nullptr, files.broken == nullptr ? "" : files.broken);
    Require(result == 1 && !operation.IsRunning(), "a run ends");
    Require(files.openListings == 0, "every listing is closed");
    RequireEverythingThere(files, operation.operation);
    const bool isUndisturbed = !files.ended && !files.failed && !files.refused && files.errors == 0;
    const bool isPlain = goesIntoEmptyFolder || operation.operation == FileOperationKind::Delete;
    if (isUndisturbed && isPlain && sources.size() == 1 &&
        files.before.contains(FilesInMemory::Folded(sources[0])))
        RequireWorkDone(files, operation.operation, sources[0], target);
}
