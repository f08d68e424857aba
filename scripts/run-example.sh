#!/usr/bin/env bash
# Sets up, builds and runs the example host (the project's main job).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target tq_example_host
./build/default/examples/tq_example_host "$@"
