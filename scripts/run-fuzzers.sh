#!/usr/bin/env bash
# Builds the libFuzzer targets with clang (the library itself instrumented for coverage and sanitizers),
# replays each seed corpus, then fuzzes each target for a bounded time (seconds per target as the first
# argument, default 60). Fails on any crash or sanitizer report, and, for runs of 60 seconds or more, when a
# target ends below its coverage floor in fuzz/coverage-floor.txt (a target without a line there still
# runs). Every target keeps its seeds in fuzz/corpus/<target>/; an input that crashed goes there too, so
# that every later run replays it.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
bash scripts/install-deps.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
floors=fuzz/coverage-floor.txt
artifacts=build/fuzz/artifacts
mkdir -p "$artifacts"
status=0
shopt -s nullglob
for src in fuzz/*.cpp; do
  name=$(basename "$src" .cpp)
  bin=build/fuzz/fuzz/$name
  corpus=fuzz/corpus/$name
  work=build/fuzz/corpus-$name
  log=build/fuzz/$name.log
  rm -rf "$work"; mkdir -p "$work"
  seeds=()
  if [ -d "$corpus" ]; then seeds=("$corpus"); else echo "== $name: no seed corpus in $corpus"; fi
  echo "== $name: replaying seeds"
  if [ ${#seeds[@]} -gt 0 ]; then "$bin" -runs=0 "${seeds[@]}"; fi
  echo "== $name: fuzzing for ${seconds}s"
  if ! "$bin" -max_total_time="$seconds" -max_len=4096 -timeout=10 -rss_limit_mb=4096 \
      -artifact_prefix="$artifacts/$name-" "$work" "${seeds[@]}" >"$log" 2>&1; then
    tail -n 40 "$log"
    echo "== $name: FAILED; the input is in $artifacts/ (copy it into $corpus/ to keep it as a regression)"
    status=1
    continue
  fi
  tail -n 3 "$log"
  coverage=$(grep -a -o 'cov: [0-9]*' "$log" | tail -n 1 | awk '{print $2}' || true)
  floor=$(awk -v t="$name" '$1 == t { print $2 }' "$floors" 2>/dev/null || true)
  echo "== $name: coverage ${coverage:-0} edges (floor ${floor:-none})"
  if [ -n "$floor" ] && [ "$seconds" -ge 60 ] && [ "${coverage:-0}" -lt "$floor" ]; then
    echo "== $name: coverage below its floor: is the library still instrumented?"
    status=1
  fi
done
exit $status
