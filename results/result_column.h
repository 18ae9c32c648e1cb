#pragma once

// The five columns of the result list. The numbers are the list view's sub-item indexes.

enum class ResultColumn { Name = 0, Folder = 1, Size = 2, Type = 3, Modified = 4 };

constexpr int ResultColumnCount = 5;
