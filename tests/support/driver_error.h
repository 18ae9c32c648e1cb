#pragma once

// What the driver throws when a step could not be done within its deadline; the text says which.

#include <stdexcept>
#include <string>

class DriverError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};
