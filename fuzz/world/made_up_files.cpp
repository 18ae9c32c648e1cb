#include "made_up_files.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/windows_ce.h"

namespace {

// A file without a name, in memory: the program reads it as it reads any other.
int FileInMemory() {
    static const int file = memfd_create("made-up file", 0);
    if (file < 0) std::abort();
    return file;
}

std::FILE* OpenMadeUpFile(const wchar_t*) {
    lseek(FileInMemory(), 0, SEEK_SET);
    return fdopen(dup(FileInMemory()), "rb");
}

ce::FileCalls MadeUpCalls() {
    ce::FileCalls calls{};
    calls.openForReading = OpenMadeUpFile;
    return calls;
}

}  // namespace

ce::FileCalls ce::fileCalls = MadeUpCalls();

std::size_t ce::ReadBlock(std::FILE* file, unsigned char* block, std::size_t size) {
    const ssize_t count = read(fileno(file), block, size);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

void SetMadeUpFile(const std::string& content) {
    const auto size = static_cast<ssize_t>(content.size());
    if (ftruncate(FileInMemory(), 0) != 0) std::abort();
    if (pwrite(FileInMemory(), content.data(), content.size(), 0) != size) std::abort();
}
