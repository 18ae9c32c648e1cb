// The conversion pair that asks the system. In a file of its own because the others are also compiled for the
// building machine.

#include "search/text_conversion.h"

#include "platform/windows_ce.h"

namespace {

template <typename Text>
int LengthUpTo(const Text* text, int limit) {
    int length = 0;
    while (length < limit && text[length] != 0)
        ++length;
    return length;
}

}  // namespace

void SystemToMultiByte(const wchar_t* source, char* destination, int destinationSize) {
    if (destinationSize <= 0) return;
    if (WideCharToMultiByte(CP_ACP, 0, source, -1, destination, destinationSize, nullptr, nullptr) > 0)
        return;
    // Too long: what the system wrote is undefined then, so find the longest part that fits.
    const int room = destinationSize - 1;
    for (int units = LengthUpTo(source, room); units > 0; --units) {
        const int bytes = WideCharToMultiByte(CP_ACP, 0, source, units, destination, room, nullptr, nullptr);
        if (bytes > 0) {
            destination[bytes] = '\0';
            return;
        }
    }
    destination[0] = '\0';
}

void SystemToWide(const char* source, wchar_t* destination, int destinationSize) {
    if (destinationSize <= 0) return;
    if (MultiByteToWideChar(CP_ACP, 0, source, -1, destination, destinationSize) > 0) return;
    // A unit takes at most four bytes; counting down from there finds the longest part that fits.
    const int room = destinationSize - 1;
    for (int bytes = LengthUpTo(source, 4 * room); bytes > 0; --bytes) {
        const int units = MultiByteToWideChar(CP_ACP, 0, source, bytes, destination, room);
        if (units > 0) {
            destination[units] = L'\0';
            return;
        }
    }
    destination[0] = L'\0';
}
