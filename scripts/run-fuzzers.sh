#!/usr/bin/env bash
# Builds the libFuzzer targets with clang, replays each seed corpus, then fuzzes each target for a bounded
# time (seconds per target as the first argument, default 60). Fails on any crash or sanitizer report.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
bash scripts/install-deps.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
shopt -s nullglob
for src in fuzz/*.cpp; do
  name=$(basename "$src" .cpp)
  bin=build/fuzz/fuzz/$name
  corpus=fuzz/corpus/$name
  work=build/fuzz/corpus-$name
  rm -rf "$work"; mkdir -p "$work"
  seeds=()
  if [ -d "$corpus" ]; then seeds=("$corpus"); fi
  echo "== $name: replaying seeds"
  if [ ${#seeds[@]} -gt 0 ]; then "$bin" -runs=0 "${seeds[@]}"; fi
  echo "== $name: fuzzing for ${seconds}s"
  "$bin" -max_total_time="$seconds" -max_len=4096 -timeout=10 -rss_limit_mb=4096 "$work" "${seeds[@]}" 2>&1 | tail -n 5
  test "${PIPESTATUS[0]}" -eq 0
done
