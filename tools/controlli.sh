#!/usr/bin/env bash
# Checks of the source that need no build: formatting, the shell scripts, who includes what,
# sizes, blanks, and that the tree explains itself.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

# sorgenti FIND-TEST...: the files of the tree, build folders left out, each ended by a NUL.
sorgenti()
{
    find . \( -name .git -o -path ./build \) -prune -o -type f \( "$@" \) -print0
}

# vieta TEXT GREP-OPTION...: fails, telling why, when a text file of the tree matches.
vieta()
{
    local motivo=$1
    shift
    if grep -rnI --exclude-dir=.git --exclude-dir=build "$@" .; then
        printf 'Found above: %s\n' "$motivo" >&2
        return 1
    fi
}

sorgenti -name '*.cpp' -o -name '*.h' | xargs -0 -r clang-format --dry-run -Werror
grep -rlIZ --exclude-dir=.git --exclude-dir=build -E '^#!/usr/bin/env bash|^# shellcheck shell=bash' . |
    xargs -0 shellcheck -x -P SCRIPTDIR
tools/controlli-stanze
tools/controlli-limiti
vieta "what a merge left." -E '^(<<<<<<<|>>>>>>>)( |$)'
vieta "blanks at the end of a line." -E '[[:blank:]]+$'
vieta "a reference to a paper that the reader of this tree does not have." \
    -E '\bParts? [1-6]\.[1-6]\b|\b[Ss]pecification\b|\bspec\.md\b'
vieta "a test that can pass without running." --include='*.cpp' --include='*.h' -E 'GTEST_SKIP|QSKIP|DISABLED_'
vieta "a message box beside the one door, base/messaggi." --include='*.cpp' --include='*.h' --exclude=messaggi.cpp \
    --exclude-dir=tests --exclude-dir=benchmarks QMessageBox
