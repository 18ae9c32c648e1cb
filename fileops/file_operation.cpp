#include "fileops/file_operation.h"

#include <cwchar>
#include <iterator>
#include <new>

#include "base/program_context.h"
#include "framework/message_boxes.h"
#include "framework/property_set.h"
#include "resources/resource_ids.h"

namespace {

// QUIRK: one-text-for-two-overlaps
constexpr TextPair SourceIsInside = {L"Source to destination is recursive", L"送り側と受け側が同じです"};

// What the dialog says during an operation.
struct OperationTexts {
    TextPair title;
    TextPair sourceLabel;
    TextPair destinationLabel;
};

// In the order of FileOperationKind.
constexpr OperationTexts AllTexts[] = {
    {{L"File Copy Progress", L"ﾌｧｲﾙのｺﾋﾟｰ中"},
     {L"Source file:", L"ｺﾋﾟｰ元"},
     {L"Destination file:", L"ｺﾋﾟｰ先"}},
    {{L"File Update Progress", L"ﾌｧｲﾙのｱｯﾌﾟﾃﾞｰﾄ中"},
     {L"Source file:", L"ｱｯﾌﾟﾃﾞｰﾄ元"},
     {L"Destination file:", L"ｱｯﾌﾟﾃﾞｰﾄ先"}},
    // QUIRK: exclude-label-has-no-colon. That of the destination, in English.
    {{L"File Exclude Progress", L"ﾌｧｲﾙの排除中"},
     {L"Source file:", L"排除元"},
     {L"Destination file", L"排除先"}},
    {{L"File Move Progress", L"ﾌｧｲﾙの移動中"},
     {L"Source file:", L"移動元"},
     {L"Destination file:", L"移動先"}},
    {{L"File Delete Progress", L"ﾌｧｲﾙの削除中"}, {L"Delete file:", L"削除するﾌｧｲﾙ"}, {L"", L""}},
};

// Null for a value that is no operation.
const OperationTexts* TextsOf(FileOperationKind kind) {
    const auto index = static_cast<std::uint32_t>(kind);
    return index < std::size(AllTexts) ? &AllTexts[index] : nullptr;
}

// Drops separators at the end, which later comparisons and joins do not expect; a root keeps its own.
bool CopyPath(PathBuffer& destination, const wchar_t* path) {
    std::size_t units = std::wcslen(path);
    if (units >= MAX_PATH) return false;
    const std::size_t root = units > 1 && path[1] == L':' ? 3 : 1;
    while (units > root && IsSeparator(path[units - 1]))
        --units;
    std::wmemcpy(destination, path, units);
    destination[units] = L'\0';
    return true;
}

}  // namespace

FileOperation::FileOperation(WindowObject* parent)
    : JobDialog(parent, TemplateProperties(InLanguage(L"EFileOpDialog_E", L"EFileOpDialog_J")), BUTTON_STOP) {
    OnCommand(BUTTON_STOP, this, &FileOperation::OnStop);
    OnMessage(WM_CLOSE, this, &FileOperation::OnWmClose);
}

FileOperation::~FileOperation() = default;

bool FileOperation::AddSource(const wchar_t* path) {
    PathBuffer copy;
    if (path[0] == L'\0' || !CopyPath(copy, path)) return false;
    if (sources_ == nullptr) sources_.reset(new (std::nothrow) ObjectList);
    if (sources_ == nullptr) return false;
    StringObject* const item = StringObject::Create(copy);
    if (item == nullptr) return false;
    if (sources_->Append(item)) return true;
    delete item;
    return false;
}

void FileOperation::ClearSources() {
    sources_.reset();
}

bool FileOperation::SetDestination(const wchar_t* path) {
    return CopyPath(destination_, path);
}

INT_PTR FileOperation::RunModal() {
    if (IsRunning()) return -1;
    closeParentAfterwards_ = false;
    const INT_PTR result = JobDialog::RunModal();
    if (closeParentAfterwards_) PostMessageW(ParentHandle(), WM_CLOSE, 0, 0);
    // Needed as well if the window was destroyed with its owner, or if the program ended before the run
    // began.
    return HasBegun() || result != -1 ? ResultOk : -1;
}

void FileOperation::StopAndCloseParent() {
    closeParentAfterwards_ = true;
    RequestStop();
    const HWND front = ce::InputWindowOf(Handle());
    if (front != Handle()) PostMessageW(front, WM_CLOSE, 0, 0);
}

LRESULT FileOperation::OnInitDialog(MessageRecord& record) {
    const LRESULT result = JobDialog::OnInitDialog(record);
    ShowAndStart();
    return result;
}

// The system would post a Cancel, which would only arrive a file later.
LRESULT FileOperation::OnWmClose(MessageRecord&) {
    RequestStop();
    return 1;
}

// The bar's Cancel and closing the window both stop the run; the dialog closes when the run has unwound. If
// the run has not begun, it would miss the stop, so the dialog closes at once.
void FileOperation::RequestStop() {
    Stop();
    if (!HasBegun()) End(ResultOk);
}

LRESULT FileOperation::OnStop(EventArguments&) {
    Stop();
    return 0;
}

// A key still held down from answering a question only repeats, and stops nothing.
bool FileOperation::StopsBy(const MessageRecord& key) const {
    return (key.wParam == VK_RETURN || key.wParam == VK_ESCAPE) && (HIWORD(key.lParam) & KF_REPEAT) == 0;
}

// Activated from outside while a question or an error box is open.
LRESULT FileOperation::OnWmActivate(MessageRecord& record) {
    if (LOWORD(record.wParam) != WA_INACTIVE && ce::PassActivationOn(Handle())) return 1;
    return JobDialog::OnWmActivate(record);
}

void FileOperation::DoJob(MessageRecord&) {
    RunFileOperation();
    End(ResultOk);
}

void FileOperation::RunFileOperation() {
    abortRequested_ = false;
    const OperationTexts* const texts = TextsOf(operation);
    if (texts == nullptr) return;
    SetWindowTextW(Handle(), texts->title.Text());
    depth_ = 0;
    const std::uint32_t count = sources_ != nullptr ? sources_->Count() : 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        const wchar_t* const source = static_cast<const StringObject*>(sources_->ItemAt(i))->Text();
        // QUIRK: overlap-stops-updates-too
        if (operation != FileOperationKind::Delete && IsInsideSource(source, destination_)) {
            ShowError(Handle(), SourceIsInside.Text());
            return;
        }
        SetDlgItemTextW(Handle(), LABEL_SOURCE, texts->sourceLabel.Text());
        SetDlgItemTextW(Handle(), LABEL_DESTINATION, texts->destinationLabel.Text());
        UpdateWindow(Handle());
        if (!ProcessSource(source)) return;
    }
}

bool FileOperation::ProcessSource(const wchar_t* path) {
    PathBuffer source;
    PathBuffer target;
    std::wcscpy(source, path);
    std::wcscpy(target, destination_);
    switch (operation) {
        case FileOperationKind::Copy:
            return CopyEntry(source, target);
        case FileOperationKind::Update:
            return UpdateEntry(source, target);
        case FileOperationKind::Exclude:
            return ExcludeEntry(source, target);
        case FileOperationKind::Move:
            return MoveEntry(source, target);
        case FileOperationKind::Delete:
            return DeleteEntry(source);
    }
    return false;
}
