#!/usr/bin/env bash
# Installs a build into a scratch folder as the package would (prefix /usr) and checks the tree.
# usage: install_tree_test.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1 source=$2
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
DESTDIR=$stage cmake --install "$build" --prefix /usr >/dev/null
"$source/tools/check_install_tree.sh" "$stage" "$stage/usr/bin/tarvel"
