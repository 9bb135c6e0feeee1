#!/usr/bin/env bash
# Sets up what is missing, builds with warnings as errors, and runs the whole test suite.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$here/tools/setup.sh" "$here/build/test" -DCMAKE_BUILD_TYPE=Debug -DTARVEL_WERROR=ON "$@"
cd "$here/build/test"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
