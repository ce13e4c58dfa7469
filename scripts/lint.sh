#!/usr/bin/env bash
# Checks the formatting of all C++ files, and runs the linter over the sources of the programs.
# Prints what is wrong; exit status 1 if anything is. The tree must have been built (./test does it).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/setup.sh
install_missing "${lint_packages[@]}"

say "Checking the formatting"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

# The linter is another compiler: it cannot read precompiled headers made by this one.
say "Running the linter"
lint=$BUILD/lint
mkdir -p "$lint"
sed -E 's/-Winvalid-pch -include [^ ]+//' "$BUILD/compile_commands.json" >"$lint/compile_commands.json"
run-clang-tidy -quiet -p "$lint" "$root/src/.*\.cpp" >"$lint/lint.log" 2>&1 || {
    grep -E -A4 '(warning|error):' "$lint/lint.log" >&2
    exit 1
}
