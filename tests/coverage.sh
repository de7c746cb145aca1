#!/usr/bin/env bash
# coverage.sh BUILD: runs the tests of the coverage build and prints how many lines and branches of
# each folder ran. Fails below 95 % of the lines or 85 % of the branches of src, without what draws
# (mirror) and what only asks the system (platform). BUILD/report/index.html shows what did not run.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
find "$build" -name '*.gcda' -delete
ctest --preset coverage >"$build/tests.log" || { tail -n 40 "$build/tests.log" && exit 1; }
mkdir -p "$build/report"
# Left out: branches that only an exception of the library takes, such as lack of memory, and those
# that the compiler adds where no source stands.
gcovr --root . --object-directory "$build" --filter src/ --filter player/ --filter apps/ \
  --filter loopback/ --exclude-throw-branches --exclude-unreachable-branches -j "$(nproc)" \
  --html-details "$build/report/index.html" --csv "$build/report/files.csv" "$build"
# The columns that are used: filename, line_total, line_covered, branch_total, branch_covered.
awk -F, '
  function row(name, l, lc, b, bc, into) {
    printf "%-22s %6d lines %5.1f %%  %6d branches %5.1f %%\n", name, l, l ? 100 * lc / l : 100,
           b, b ? 100 * bc / b : 100 | into
  }
  NR == 1 { for (i = 1; i <= NF; ++i) at[$i] = i; next }
  {
    folder = $at["filename"]
    sub("/[^/]*$", "", folder)
    lines[folder] += $at["line_total"]; ran[folder] += $at["line_covered"]
    # A window struct has no branch but loops over its arrays. The others that are counted there
    # destroy its members when the constructor of one of them throws.
    if (folder == "src/forms") $at["branch_total"] = $at["branch_covered"] = 0
    branches[folder] += $at["branch_total"]; taken[folder] += $at["branch_covered"]
    if (folder ~ "^src/" && folder !~ "^src/(mirror|platform)") {
      l += $at["line_total"]; lc += $at["line_covered"]
      b += $at["branch_total"]; bc += $at["branch_covered"]
    }
  }
  END {
    for (folder in lines)
      row(folder, lines[folder], ran[folder], branches[folder], taken[folder], "sort")
    close("sort")
    row("src without these two", l, lc, b, bc, "cat")
    close("cat")
    exit lc < 0.95 * l || bc < 0.85 * b
  }' "$build/report/files.csv"
