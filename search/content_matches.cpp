#include "search/content_matches.h"

#include <cstring>

#include "base/program_context.h"
#include "platform/windows_ce.h"
#include "search/byte_reader.h"
#include "search/content_prefilter.h"
#include "search/substring_search.h"
#include "search/line_readers.h"

namespace {

const char* ReadLine(const SearchConditions& conditions, ByteReader& reader) {
    char(&line)[LineBufferSize] = SharedLineBuffer();
    if (!conditions.Has(SearchConditions::IgnoreCase)) return ReadLineExact(line, LineReaderSize, reader);
    return ReadLineUpper(line, LineReaderSize, reader, Context().codeConversionAvailable);
}

// A reader's null ends the file even where it has more.
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

bool FileContains(std::FILE* file, const SearchConditions& conditions) {
    FileByteSource source(file);
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
    std::FILE* const file = ce::OpenForReading(fullPath);
    if (file == nullptr) return false;
    // Blocks are read to buffers of their own.
    std::setvbuf(file, nullptr, _IONBF, 0);
    const bool contains = FileContains(file, conditions);
    std::fclose(file);
    return contains;
}
