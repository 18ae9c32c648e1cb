#pragma once

// A calendar that knows nothing but which day follows which: what the program's own is compared with.

struct PlainDay {
    int year = 1, month = 1, day = 1;

    bool operator==(const PlainDay&) const = default;

    [[nodiscard]] bool InLeapYear() const {
        if (year <= 1582) return year % 4 == 0;
        return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    }
    [[nodiscard]] int MonthLength() const {
        if (month == 2) return InLeapYear() ? 29 : 28;
        return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
    }
    void Advance() {
        if (year == 1582 && month == 10 && day == 4) {
            day = 15;
        } else if (day < MonthLength()) {
            ++day;
        } else {
            day = 1;
            month = month % 12 + 1;
            if (month == 1) ++year;
        }
    }
};
