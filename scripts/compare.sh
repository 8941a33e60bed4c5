#!/usr/bin/env bash
# Measures the program beside TigerVNC on the same work, and prints tables with the ratios: the time
# from a key press to the picture, bytes, processor time, pictures a second, and all that on slow
# lines. Needs root for networks of its own; takes a quarter of an hour, with --quick two minutes.
#
# Usage: scripts/compare.sh [--quick] [--size 1920x1080] [--modes speed,quality,smooth]
#                           [--only latency,work,idle,slow,upload]
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/bootstrap.sh compare
cmake --preset compare
cmake --build --preset compare --target CorvaneClient corvane-compare
QT_QPA_PLATFORM=offscreen exec build/compare/tools/compare/corvane-compare "$@"
