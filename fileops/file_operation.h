#pragma once

// Copies, updates, excludes, moves or deletes a list of files and folders under a small modal dialog, which
// shows each file and offers Stop. A caller says which of the five it wants and runs it. Nothing is returned,
// since every failure has been reported to the user by then:
//     operation.ClearSources();
//     if (!operation.AddSource(L"\\My Documents\\a.txt") || !operation.SetDestination(L"\\Storage Card")) ...
//     operation.operation = FileOperationKind::Copy;
//     operation.confirm = operation.multiple = true;
//     operation.RunModal();

#include <cstdint>
#include <memory>

#include "base/object_list.h"
#include "fileops/operation_paths.h"
#include "fileops/question_texts.h"
#include "framework/job_dialog.h"

enum class FileOperationKind : std::uint32_t { Copy, Update, Exclude, Move, Delete };

class FileOperation : public JobDialog {
  public:
    // Takes its template in the user's language. The parent's window owns the dialog and the questions.
    explicit FileOperation(WindowObject* parent);
    ~FileOperation() override;

    // Adds a full path to what is processed, in this order. Returns false, leaving the list as it was, for an
    // empty path, for one of MAX_PATH units or more and without memory. Separators at the end are dropped.
    [[nodiscard]] bool AddSource(const wchar_t* path);
    void ClearSources();
    // The folder to work on; for a single file it may be a file's path. Delete ignores it. Returns false for
    // a path of MAX_PATH units or more. Separators at the end are dropped.
    [[nodiscard]] bool SetDestination(const wchar_t* path);

    // Any other value does nothing.
    FileOperationKind operation = FileOperationKind::Copy;
    // Asks before each replacing and deleting. Cleared by the answer Yes to All, also for the next run.
    bool confirm = true;
    // The questions offer Yes to All and Cancel.
    bool multiple = true;

    // Returns ResultOk whatever happened, or -1 if the template is missing or a run is under way. The fields
    // and the list must not be changed during a run.
    INT_PTR RunModal() override;

    // What the Stop button does: the run ends before the next file. What was done stays done.
    void Stop() { abortRequested_ = true; }
    // Stops, and closes the parent's window when the run is over. An open question is cancelled, an open
    // error box closed.
    void StopAndCloseParent();

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override;
    LRESULT OnWmActivate(MessageRecord& record) override;
    void DoJob(MessageRecord& record) override;
    void RequestStop() override;
    [[nodiscard]] bool StopsBy(const MessageRecord& key) const override;

  private:
    enum class FolderStep { Enter, Skip, End };

    LRESULT OnStop(EventArguments& arguments);
    LRESULT OnWmClose(MessageRecord& record);

    void RunFileOperation();
    [[nodiscard]] bool ProcessSource(const wchar_t* path);

    // Each returns whether to go on with the next entry, also after a skip; false ends the run. The paths may
    // be extended meanwhile and are restored.
    [[nodiscard]] bool CopyEntry(PathBuffer& source, PathBuffer& target);
    [[nodiscard]] bool UpdateEntry(PathBuffer& source, PathBuffer& target);
    [[nodiscard]] bool ExcludeEntry(PathBuffer& source, PathBuffer& target);
    [[nodiscard]] bool MoveEntry(PathBuffer& source, PathBuffer& target);
    [[nodiscard]] bool DeleteEntry(PathBuffer& path);

    using EntryWorker = bool (FileOperation::*)(PathBuffer& source, PathBuffer& target);
    using FileStep = bool (FileOperation::*)(const wchar_t* source, const wchar_t* target);
    [[nodiscard]] bool FileInto(const wchar_t* source, PathBuffer& target, FileStep step);
    [[nodiscard]] bool EachEntry(const wchar_t* walked, PathBuffer& source, PathBuffer& target,
                                 EntryWorker worker);
    [[nodiscard]] FolderStep PrepareFolder(const wchar_t* folder);
    [[nodiscard]] bool AskFolderDelete(const wchar_t* folder);

    // One file each; the same results as above.
    [[nodiscard]] bool CopyOneFile(const wchar_t* source, const wchar_t* target);
    [[nodiscard]] bool CopyOneFileIfNewer(const wchar_t* source, const wchar_t* target);
    [[nodiscard]] bool ReplaceByCopy(const wchar_t* source, const wchar_t* target);
    [[nodiscard]] bool MoveOneFile(const wchar_t* source, const wchar_t* target);
    [[nodiscard]] bool DeleteOneFile(const wchar_t* path);

    [[nodiscard]] bool BeginFile(const wchar_t* source, const wchar_t* target);
    [[nodiscard]] ConfirmResult AskFileReplace(const wchar_t* source, const wchar_t* target);
    [[nodiscard]] ConfirmResult AskInRun(const Question& question);
    [[nodiscard]] Answers AnswersOffered() const {
        return multiple ? Answers::YesAllNoCancel : Answers::YesNo;
    }

    std::unique_ptr<ObjectList> sources_;
    PathBuffer destination_ = L"";
    bool abortRequested_ = false;
    // How deep the walk is below the item of the list that is copied or moved.
    std::int32_t depth_ = 0;

    bool closeParentAfterwards_ = false;
};
