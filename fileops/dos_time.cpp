#include "fileops/dos_time.h"

namespace {

constexpr unsigned FirstYear = 1980;
constexpr unsigned Years = 128;

int Compare(unsigned first, unsigned second) {
    return first < second ? -1 : first > second ? 1 : 0;
}

}  // namespace

DosTime PackDosTime(const SYSTEMTIME& moment) {
    // QUIRK: years-have-seven-bits. QUIRK: times-have-steps-of-two-seconds.
    const unsigned year = (moment.wYear - FirstYear) % Years;
    return {static_cast<std::uint16_t>(year * 512 + moment.wMonth * 32u + moment.wDay),
            static_cast<std::uint16_t>(moment.wHour * 2048u + moment.wMinute * 32u + moment.wSecond / 2u)};
}

int CompareDosTimes(const DosTime& first, const DosTime& second) {
    const int byDate = Compare(first.date, second.date);
    return byDate != 0 ? byDate : Compare(first.time, second.time);
}
