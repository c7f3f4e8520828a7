#!/usr/bin/env bash
# Installs what Cartomar needs, builds it, and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -G Ninja >/dev/null
cmake --build build
exec build/cartomar
