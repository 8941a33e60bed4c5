#!/usr/bin/env bash
# Fails when clang-tidy finds something. Usage: scripts/check-tidy.sh [<source file>...]
#
# Without arguments it reads everything below src, which takes minutes. It works on the
# compile commands of the dev or asan preset, which has to be built: the sources include generated
# headers.
set -euo pipefail
cd "$(dirname "$0")/.."

build=
for folder in build/dev build/asan; do
    if [ -z "$build" ] && [ -f $folder/compile_commands.json ]; then
        build=$folder
    fi
done
if [ -z "$build" ]; then
    echo "check-tidy: build the dev preset first (scripts/test.sh does)" >&2
    exit 1
fi

if [ $# -gt 0 ]; then
    files=("$@")
else
    mapfile -t files < <(git ls-files -- 'src/*.cpp')
fi
# What the build does not compile, such as another platform's sources, has no command line.
known=()
for file in "${files[@]}"; do
    if [[ $file == *.cpp ]] && grep -qF "/$file\"" $build/compile_commands.json; then
        known+=("$file")
    fi
done
if [ ${#known[@]} -gt 0 ]; then
    printf '%s\0' "${known[@]}" |
        xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p $build 2> >(grep -v 'warnings generated' >&2)
fi
echo "Tidy: clean (${#known[@]} files)"
