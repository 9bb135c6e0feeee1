#!/usr/bin/env bash
# Builds and installs the Debian package as ./package.sh does, then checks it as a user's machine
# would see it: lintian, the installed files, the installed program run from elsewhere, and that
# removing it leaves nothing behind. Needs root (apt-get), as in CI.
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
source "$here/tools/check_steps.sh"
apt() { DEBIAN_FRONTEND=noninteractive apt-get -y -q -o DPkg::Lock::Timeout=600 "$@"; }

# A tarvel left installed by an earlier run would hide what this package installs.
if dpkg-query -W tarvel >/dev/null 2>&1; then apt purge tarvel >/dev/null; fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if ! "$here/package.sh" >"$work/package.log" 2>"$work/package.err"; then
  tail -n 40 "$work/package.log" "$work/package.err"
  echo "FAIL: building or installing the package"
  exit 1
fi
deb=$(head -n 1 "$work/package.log")
echo "package: $deb ($(du -k "$deb" | cut -f1) KiB)"

lintian_out=$(lintian --fail-on error --display-info "$deb" 2>&1)
lintian_status=$?
[ -n "$lintian_out" ] && echo "$lintian_out" | sed 's/^/    lintian: /'
if [ "$lintian_status" -eq 0 ]; then pass "lintian reports no error"; else fail "lintian reports no error"; fi

check "installed as /usr/bin/tarvel" test "$(command -v tarvel)" = /usr/bin/tarvel
check "manual page found by man" test "$(man -w tarvel)" = /usr/share/man/man1/tarvel.1.gz
"$here/tools/check_install_tree.sh" / /usr/bin/tarvel | sed 's/^/    /'
if [ "${PIPESTATUS[0]}" -eq 0 ]; then pass "installed files"; else fail "installed files"; fi

# The installed program, from a folder that is not the source tree, with a home of its own.
mkdir -p "$work/home" && mkdir -m 700 "$work/run"
run() { (cd "$work" && env HOME="$work/home" XDG_CONFIG_HOME="$work/home/config" XDG_DATA_HOME="$work/home/data" \
  XDG_RUNTIME_DIR="$work/run" QT_QPA_PLATFORM=offscreen tarvel "$@"); }
check "tarvel --version" grep -qx "tarvel $(dpkg-query -W -f='${Version}' tarvel)" <(run --version)
check "tarvel snapshot --json" grep -q '"CPU":\[\[' <(run snapshot --json)
run render --out "$work/pictures" >"$work/render.txt" 2>&1
check "tarvel render writes pictures" grep -q 'PNG image data' <(file "$work/pictures/CPU.png")
# The drop-downs are widgets: this render goes through the installed desktop program.
run render --panels --out "$work/panels" >"$work/panels.txt" 2>&1
check "tarvel render --panels writes drop-downs" grep -q 'PNG image data' <(file "$work/panels/CPU-dropdown.png")

installed=$(dpkg -L tarvel)
apt purge tarvel >/dev/null
check "package gone" bash -c '! dpkg-query -W tarvel'
left=()
while read -r path; do
  # Folders shared with other packages (/usr/share/applications...) stay, and only they may.
  if [ -e "$path" ] && ! { [ -d "$path" ] && dpkg-query -S "$path" >/dev/null 2>&1; }; then left+=("$path"); fi
done <<<"$installed"
check "nothing of it remains (${#left[@]} left)" test ${#left[@]} -eq 0
[ ${#left[@]} -eq 0 ] || printf '    left: %s\n' "${left[@]}"

checkSummary package
