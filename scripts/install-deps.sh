#!/usr/bin/env bash
# Installs the Debian packages the build needs, only those that are missing.
# Safe to run again: with everything present it only checks and exits.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  qtbase5-dev libboost-dev libimath-dev libssl-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-14-dev
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "Installing: ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
