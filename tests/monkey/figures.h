#pragma once

// What a run of the random hands came to.

#include <string>
#include <vector>

struct Figures {
    int lives = 0;
    int starts = 0;
    int ends = 0;  // by the hands, before the life was over
    int steps = 0;
    int pointer = 0;
    int keys = 0;
    int commands = 0;
    int messages = 0;
    int destroyed = 0;
    int screens = 0;
    int fileChanges = 0;
    int searches = 0;
    int comparedSearches = 0;
    int deleted = 0;
    int renamed = 0;
    int faults = 0;
    int mostHandlesMore = 0;
    std::vector<std::string> findings;
};
