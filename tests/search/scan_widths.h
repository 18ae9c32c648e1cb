#pragma once

// Puts a content scan of each width to the test, on processors that have it.

#include <vector>

#include "search/block_scanner.h"

[[nodiscard]] inline std::vector<ScanWidth> ScanWidthsHere() {
    std::vector<ScanWidth> widths = {ScanWidth::Bytes16};
    if (CanScan(ScanWidth::Bytes32)) widths.push_back(ScanWidth::Bytes32);
    return widths;
}

// The scan is of this width as long as the object lives.
class ScanWidthInUse {
  public:
    explicit ScanWidthInUse(ScanWidth width) : before_(BlockScannerWidth()) { SetBlockScannerWidth(width); }
    ~ScanWidthInUse() { SetBlockScannerWidth(before_); }
    ScanWidthInUse(const ScanWidthInUse&) = delete;
    ScanWidthInUse& operator=(const ScanWidthInUse&) = delete;

  private:
    ScanWidth before_;
};
