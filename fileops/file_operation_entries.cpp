// How the operations walk over files and folders.

#include "base/folder_entries.h"
#include "fileops/file_actions.h"
#include "fileops/file_facts.h"
#include "fileops/file_operation.h"

// Everything that an entered folder lists.
constexpr const wchar_t* EveryEntry = L"*.*";

// A link to a folder stands for contents kept elsewhere, and may lead back up the tree: no operation enters
// one. A copy leaves it out, a move takes the link itself along, a deletion removes only the link.

bool FileOperation::CopyEntry(PathBuffer& source, PathBuffer& target) {
    const PathKind kind = KindOf(source);
    if (kind == PathKind::LinkToFolder) return true;
    if (kind != PathKind::Folder) return FileInto(source, target, &FileOperation::CopyOneFile);
    // Below the item of the list, the target already ends in the name.
    const PathExtension named =
        depth_ == 0 ? PathExtension::ByNameOf(source, target) : PathExtension::ByNothing(target);
    if (!named.Fits()) return true;
    const FolderStep step = PrepareFolder(target);
    if (step != FolderStep::Enter) return step == FolderStep::Skip;
    return EachEntry(source, source, target, &FileOperation::CopyEntry);
}

// QUIRK: update-merges-into-the-destination. Whatever the folder's name, and without a question.
bool FileOperation::UpdateEntry(PathBuffer& source, PathBuffer& target) {
    const PathKind kind = KindOf(source);
    if (kind == PathKind::LinkToFolder) return true;
    if (kind != PathKind::Folder) return FileInto(source, target, &FileOperation::CopyOneFileIfNewer);
    if (!IsFolder(target) && !CreateFolderPath(Handle(), target)) return false;
    return EachEntry(source, source, target, &FileOperation::UpdateEntry);
}

// QUIRK: exclude-removes-no-file. It walks over the target, not the source, and a file found there always
// exists.
bool FileOperation::ExcludeEntry(PathBuffer& source, PathBuffer& target) {
    const PathKind kind = KindOf(target);
    if (kind == PathKind::File) return true;
    // QUIRK: excluding-from-nothing-fails
    if (kind == PathKind::Nothing) return DeleteEntry(target);
    if (IsFolder(source)) {
        return kind == PathKind::LinkToFolder ||
               EachEntry(target, source, target, &FileOperation::ExcludeEntry);
    }
    return AskFolderDelete(target) && DeleteEntry(target);
}

bool FileOperation::MoveEntry(PathBuffer& source, PathBuffer& target) {
    if (KindOf(source) != PathKind::Folder) return FileInto(source, target, &FileOperation::MoveOneFile);
    const PathExtension named =
        depth_ == 0 ? PathExtension::ByNameOf(source, target) : PathExtension::ByNothing(target);
    if (!named.Fits()) return true;
    const FolderStep step = PrepareFolder(target);
    if (step != FolderStep::Enter) return step == FolderStep::Skip;
    return EachEntry(source, source, target, &FileOperation::MoveEntry) &&
           RemoveDirectoryOrReport(Handle(), source);
}

bool FileOperation::DeleteEntry(PathBuffer& path) {
    const PathKind kind = KindOf(path);
    if (kind == PathKind::File || kind == PathKind::Nothing) return DeleteOneFile(path);
    if (kind == PathKind::Folder) {
        FolderEntries entries(path, EveryEntry);
        for (bool more = entries.HasEntry(); more; more = entries.MoveOn()) {
            if (IsSkippedName(entries.Entry().cFileName)) continue;
            const PathExtension entry(path, entries.Entry().cFileName);
            if (entry.Fits() && !DeleteEntry(path)) return false;
        }
    }
    return RemoveDirectoryOrReport(Handle(), path);
}

// A file goes to the target or, if that is a folder, to its own name in it.
bool FileOperation::FileInto(const wchar_t* source, PathBuffer& target, FileStep step) {
    const PathExtension named =
        IsFolder(target) ? PathExtension::ByNameOf(source, target) : PathExtension::ByNothing(target);
    return !named.Fits() || (this->*step)(source, target);
}

// The worker for every entry of the walked folder, which is the source or the target. An entry whose path
// would be too long is left out; a folder that cannot be listed counts as empty.
bool FileOperation::EachEntry(const wchar_t* walked, PathBuffer& source, PathBuffer& target,
                              EntryWorker worker) {
    FolderEntries entries(walked, EveryEntry);
    for (bool more = entries.HasEntry(); more; more = entries.MoveOn()) {
        const wchar_t* const name = entries.Entry().cFileName;
        if (IsSkippedName(name)) continue;
        const PathExtension inSource(source, name);
        const PathExtension inTarget(target, name);
        if (!inSource.Fits() || !inTarget.Fits()) continue;
        ++depth_;
        const bool goOn = (this->*worker)(source, target);
        --depth_;
        if (!goOn) return false;
    }
    return true;
}

// QUIRK: folders-are-asked-about-after-yes-to-all. It silences the questions about files only.
FileOperation::FolderStep FileOperation::PrepareFolder(const wchar_t* folder) {
    if (!IsFolder(folder)) return CreateFolderPath(Handle(), folder) ? FolderStep::Enter : FolderStep::End;
    switch (AskInRun(ReplaceFolderQuestion(folder))) {
        case ConfirmResult::Yes:
        case ConfirmResult::YesToAll:
            return FolderStep::Enter;
        case ConfirmResult::No:
            return FolderStep::Skip;
        default:
            return FolderStep::End;
    }
}

// QUIRK: no-ends-an-exclusion. Everywhere else it skips one entry.
bool FileOperation::AskFolderDelete(const wchar_t* folder) {
    if (!confirm) return true;
    const ConfirmResult answer = AskInRun(DeleteFolderQuestion(folder));
    return answer == ConfirmResult::Yes || answer == ConfirmResult::YesToAll;
}
