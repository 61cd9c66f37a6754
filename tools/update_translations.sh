#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# update_translations.sh FILE.ts...: brings the files up to date with the texts of all sources and layouts. New texts
# come in unfinished at the end, those that are no more go, the others stay where they are. The English table holds but
# the texts that read otherwise than their keys, and is not for this.
set -euo pipefail
files=()
for file in "$@"; do files+=("$(realpath -m "$file")"); done
cd "$(dirname "$0")/.."
mapfile -t sources < <(find app platform shared resources -name '*.cpp' -o -name '*.h' -o -name '*.ui' | LC_ALL=C sort)
PATH="/usr/lib/qt6/bin:$PATH"
lupdate -silent -locations none -no-obsolete "${sources[@]}" -ts "${files[@]}" \
  2> >(grep -v 'Ignoring definition of undeclared qualified class' >&2)
