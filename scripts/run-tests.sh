#!/usr/bin/env bash
# Sets up, builds everything (library, tests, benchmarks, example) and runs the test suite.
# With --asan, uses the AddressSanitizer + UndefinedBehaviorSanitizer build instead.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=default
if [ "${1:-}" = "--asan" ]; then preset=asan; fi
bash scripts/install-deps.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset"
