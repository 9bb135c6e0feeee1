#!/usr/bin/env bash
# Sets up what is missing, builds, and runs Tarvel with the given arguments.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$here/tools/setup.sh" "$here/build/release" -DCMAKE_BUILD_TYPE=Release -DTARVEL_BUILD_TESTS=OFF >/dev/null
exec "$here/build/release/src/app/tarvel" "$@"
