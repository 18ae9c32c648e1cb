#pragma once

// The one file of the made-up system, at whatever path it is opened.

#include <string>

void SetMadeUpFile(const std::string& content);
