#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# lint.sh [BASE]: one line OK or FAIL per check. clang-tidy looks at the .cpp files changed since BASE (the commit before
# the last one unless given); everything else looks at the whole tree. Needs a configured and built build/dev. A check
# that found nothing is repeated once a file of the tree, a command of the build or a package of the system is another.
set -u
cd "$(dirname "$0")/.." || exit 1
base=${1:-$(git rev-parse --quiet --verify HEAD~1 || git hash-object -t tree /dev/null)}
build=build/dev
log=$(mktemp)
trap 'rm -f "$log"' EXIT
failed=0

python3 tools/plain_commands.py "$build" || exit 1
state=$({
    git ls-files -z --cached --others --exclude-standard | xargs -0 sha1sum 2>/dev/null
    sha1sum "$build/plain/compile_commands.json" /var/lib/dpkg/status
    git rev-parse "$base"
} | sha1sum)
mkdir -p "$build/lint"

check() {
    name=$1
    shift
    passed=$build/lint/$(printf '%s' "$name" | tr -cs 'a-zA-Z0-9' -)
    if [ "$(cat "$passed" 2>/dev/null)" = "$state" ]; then
        echo "OK   $name (as before: nothing has changed)"
        return
    fi
    began=$(date +%s)
    if "$@" >"$log" 2>&1; then
        echo "$state" >"$passed"
        echo "OK   $name ($(($(date +%s) - began)) s)"
    else
        rm -f "$passed"
        echo "FAIL $name"
        tail -n 60 "$log"
        failed=1
    fi
}

sources() {
    git ls-files --cached --others --exclude-standard '*.cpp' '*.h'
}
format() {
    sources | xargs -P "$(nproc)" -n 40 clang-format-14 --dry-run --Werror
}
# Generated headers, below build/, are not ours to mend.
folders='app|mainview|alarms|alarmlist|editor|backup|platform|alarmctl|tests'
tidy() {
    changed=$(git diff --name-only --diff-filter=d "$base" -- '*.cpp' | grep -v '^bench/' || true)
    [ -z "$changed" ] || echo "$changed" | xargs -P "$(nproc)" -n 1 clang-tidy-14 --quiet -p "$build/plain" \
        --header-filter="^$PWD/($folders)/.*\.h\$"
}
licence_heads() {
    ! git ls-files '*.cpp' '*.h' '*.py' '*.sh' '*CMakeLists.txt' '*.cmake' '*.xml' '*.qrc' '*.svg' '*.service' \
        '*.service.in' | xargs grep -L 'SPDX-License-Identifier: LGPL-2.1-or-later' | grep .
}
# What no CMakeLists.txt names is never run.
every_test_is_built() {
    ! git ls-files 'tests/*tst_*.cpp' | while read -r test; do
        grep -qF "/$test\"" "$build/compile_commands.json" || echo "$test is built by no target"
    done | grep .
}
no_sleep_in_tests() {
    ! git grep -nE 'QTest::qWait\(|QTest::qSleep|QThread::m?sleep|usleep\(|sleep_for|time\.sleep\(' -- tests
}

check "format: clang-format 14" format
check "includes: docs/architecture.md is obeyed" python3 tools/check_includes.py
check "headers: each compiles alone" python3 tools/check_headers.py "$build"
check "functions: none is longer than 60 lines" python3 tools/check_functions.py
check "licence: every file has its head" licence_heads
check "tests: each is built" every_test_is_built
check "tests: none sleeps" no_sleep_in_tests
check "tidy: files changed since $(git rev-parse --short "$base")" tidy
exit $failed
