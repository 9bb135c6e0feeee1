#!/usr/bin/env bash
# Runs tarvel's snapshot and render commands on fixed trees and compares them with the kept output.
# usage: golden_check.sh TARVEL GOLDEN_DIR OWN_FIXTURES SHARED_FIXTURES [--update]
set -euo pipefail
tarvel=$1 golden=$2 own=$3 shared=$4 update=${5:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work/run
mkdir -m 700 -p "$work/run"

# Clock readings and the live file systems' fill change from run to run; everything else may not.
normalize() {
  sed -E -e 's/"(uptime|awake)":"[^"]*"/"\1":"-"/g' -e '/^  (uptime|awake) /d' \
      -e 's/"(\/|all)":\[[0-9]+,[0-9]+,[0-9]+\]/"\1":[-]/g' -e 's/^(    Used ).*/\1-/' -e 's/ [0-9]+% used/ -% used/g'
}

failed=0
check() { # name, produced file
  local want=$golden/$1
  if [ "$update" = --update ]; then cp "$2" "$want"; return; fi
  if ! cmp -s "$want" "$2"; then
    echo "differs: $1"; diff <(head -c 4000 "$want") <(head -c 4000 "$2") || true; failed=1
  fi
}

run_tree() { # name, root, pictures to compare
  local name=$1 root=$2; shift 2
  local home=$work/$name
  mkdir -p "$home"
  export HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
  local args=(--root "$root" --settings "$home/settings.plist")
  "$tarvel" "${args[@]}" snapshot --json | normalize >"$home/snapshot.json"
  "$tarvel" "${args[@]}" snapshot | normalize >"$home/snapshot.txt"
  "$tarvel" "${args[@]}" render --out "$home/render" >/dev/null 2>&1
  check "$name.snapshot.json" "$home/snapshot.json"
  check "$name.snapshot.txt" "$home/snapshot.txt"
  for picture in "$@"; do
    check "$name.$picture.png" "$home/render/$picture.png"
  done
}

# The volume pictures show the live root file system, so only the shared tree compares them.
pictures=(General CPU CPU-menu Memory Memory-menu Network Network-menu Disk Disk-menu Temp Fan)
if [ -d "$shared/linux-procfs" ]; then
  run_tree shared "$shared/linux-procfs" "${pictures[@]}" Volume Volume-menu
else
  echo "the shared captured tree is absent; compared our own trees only"
fi
run_tree small-machine "$own/linux/small-machine" "${pictures[@]}"
run_tree storage-machine "$own/linux/storage-machine" "${pictures[@]}"
[ "$failed" = 0 ] && echo "golden output unchanged"
exit "$failed"
