#!/usr/bin/env bash
# Fails when shellcheck finds something in a shell script.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t scripts < <(git grep -lE '^#!(/usr/bin/env |/bin/)(ba)?sh' -- ':!*.md')
shellcheck "${scripts[@]}"
echo "Shell: clean"
