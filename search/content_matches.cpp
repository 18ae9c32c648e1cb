#include "search/content_matches.h"

#include <cstring>

#include "base/program_context.h"
#include "platform/windows_ce.h"
#include "search/content_prefilter.h"
#include "search/line_readers.h"
#include "search/substring_search.h"

namespace {

const char* ReadLine(const SearchConditions& conditions, ByteReader& reader) {
    char(&line)[LineBufferSize] = SharedLineBuffer();
    if (!conditions.Has(SearchConditions::IgnoreCase)) return ReadLineExact(line, LineReaderSize, reader);
    return ReadLineUpper(line, LineReaderSize, reader, Context().codeConversionAvailable);
}

// A null from a reader ends the search of the file even if more follows.
bool ALineContains(ByteSource& source, const SearchConditions& conditions) {
    const char* const pattern = conditions.contentPattern;
    const auto patternLength = static_cast<int>(std::strlen(pattern));
    ByteReader reader(source);
    while (const char* const line = ReadLine(conditions, reader)) {
        // QUIRK: nul-hides-the-rest-of-its-line
        const auto lineLength = static_cast<int>(std::strlen(line));
        if (FindBytes(line, lineLength, pattern, patternLength) != nullptr) return true;
    }
    return false;
}

bool FileContains(FileByteSource& source, const SearchConditions& conditions) {
    const char* const pattern = conditions.contentPattern;
    const std::size_t length = std::strlen(pattern);
    const ContentVerdict verdict = JudgeContent(
        source,
        {pattern, length, conditions.Has(SearchConditions::IgnoreCase), Context().codeConversionAvailable});
    // The search of the lines would have found nothing, but it would have set up the table.
    if (verdict == ContentVerdict::NoOccurrence) PrepareFindBytes(pattern, static_cast<int>(length));
    if (verdict != ContentVerdict::MayOccur) return false;
    source.Rewind();
    return ALineContains(source, conditions);
}

}  // namespace

bool ContentMatches(const SearchConditions& conditions, const wchar_t* fullPath,
                    const WIN32_FIND_DATAW& entry) {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return false;
    FileByteSource source(fullPath);
    return source.IsOpen() && FileContains(source, conditions);
}

FileByteSource::FileByteSource(const wchar_t* path) : file_(ce::OpenForReading(path)), ended_(!file_) {
    // Blocks are read past the C library's buffer, so that it need not make one.
    if (file_) std::setvbuf(file_.Get(), nullptr, _IONBF, 0);
}

// A short read is the last one: another read, only to learn that nothing is left, would be noticeable with
// small files.
std::size_t FileByteSource::Fill(unsigned char* block, std::size_t size) {
    if (ended_) return 0;
    const std::size_t count = ce::ReadBlock(file_.Get(), block, size);
    ended_ = count < size;
    return count;
}

void FileByteSource::Rewind() {
    if (!file_) return;
    std::fseek(file_.Get(), 0, SEEK_SET);
    ended_ = false;
}
