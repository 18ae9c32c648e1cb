#pragma once

// What this process holds, counted as exactly as the system lets it be counted.

#include <string>

struct Holding {
    long long heapBytes = 0;     // allocated on the process's heaps
    long long privateBytes = 0;  // of the process, as the system tells it
    int handles = 0;             // to files, keys, events, threads, sections
    int drawingObjects = 0;      // fonts, brushes, bitmaps, device contexts
    int userObjects = 0;         // windows, menus, icons, cursors, of all processes of the world
    int windows = 0;             // of this thread, with their children
    int mapEntries = 0;          // of the program's window map
};

[[nodiscard]] Holding HeldNow();

// "heap +120, handles +0, ..."
[[nodiscard]] std::string Growth(const Holding& before, const Holding& after);
