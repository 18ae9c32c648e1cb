#!/bin/sh
# Makes the icons and dialog_bar.bmp from the pixel maps in source/. The results are kept in the tree, so
# the build needs no drawing tool.
set -eu
exec python3 -B "$(dirname "$0")/source/make_images.py"
