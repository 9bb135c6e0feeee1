#!/usr/bin/env bash
# Draws the pictures the README shows: every drop-down, the bar window in the light and the dark
# theme, and the preferences window, from a fixture tree with settings of its own.
#
# usage: tools/screenshots.sh [TARVEL [OUT_DIR]]
#   TARVEL   the built program (default build/release/src/app/tarvel); nothing is built here
#   OUT_DIR  where the PNG files go (default docs/)
# Environment:
#   SCREENSHOT_ROOT     the one /proc and /sys tree to read. By default two are read: the shared
#                       captured tree ../shared/fixtures/linux-procfs (real kernel output, with
#                       memory figures and disks) where it is present, and for Temp, Fan and
#                       Volume tests/fixtures/linux/small-machine (sensor chips, fans, a volume),
#                       which stands in for the captured tree where that is absent
#   SCREEN_PROBE        the screen grabber of a test build; default tests/e2e/screen_probe beside
#                       TARVEL's build, then in build/test
#   SCREENSHOT_DISPLAY  the display number for Xvfb; default the first free one
# Needs Xvfb and xwininfo.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
tarvel=$(realpath -m "${1:-$here/build/release/src/app/tarvel}")
out=$(realpath -m "${2:-$here/docs}")
small=$here/tests/fixtures/linux/small-machine
root=${SCREENSHOT_ROOT:-$here/../shared/fixtures/linux-procfs}
[ -d "$root/proc" ] || [ -n "${SCREENSHOT_ROOT:-}" ] || root=$small
root=$(realpath -m "$root")
sensor_root=$(realpath -m "${SCREENSHOT_ROOT:-$small}")

fail() { echo "screenshots: $*" >&2; exit 1; }
[ -x "$tarvel" ] || fail "no program at $tarvel; build it first (./run.sh --version builds build/release)"
[ -d "$root/proc" ] || fail "no /proc tree below $root"
[ -d "$sensor_root/proc" ] || fail "no /proc tree below $sensor_root"
probe=${SCREEN_PROBE:-}
if [ -z "$probe" ]; then
  for candidate in "$(dirname "$tarvel")/../../tests/e2e/screen_probe" "$here/build/test/tests/e2e/screen_probe"; do
    if [ -x "$candidate" ]; then probe=$candidate; break; fi
  done
fi
[ -z "$probe" ] || [ -x "$probe" ] || fail "SCREEN_PROBE names no program: $probe"
for tool in Xvfb xwininfo; do
  command -v "$tool" >/dev/null || fail "$tool is missing (tools/setup.sh installs it)"
done

work=$(mktemp -d)
xvfb_pid=
tarvel_pid=
cleanup() {
  [ -n "$tarvel_pid" ] && kill "$tarvel_pid" 2>/dev/null && wait "$tarvel_pid" 2>/dev/null
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null && wait "$xvfb_pid" 2>/dev/null
  rm -rf "$work"
}
trap cleanup EXIT

# A home of its own: settings, themes and the desktop's applications are the script's, not the user's.
export HOME=$work/home XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
# The applications of a desktop with a system monitor, a log viewer and a terminal.
tools=$here/tests/fixtures/desktop-tools
export XDG_DATA_DIRS=$tools/log-viewer:$tools/monitor-terminal LANG=C.UTF-8 LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS
mkdir -p "$HOME" "$XDG_CONFIG_HOME" "$XDG_DATA_HOME"
mkdir -m 700 "$XDG_RUNTIME_DIR"
settings=$work/settings.plist
run_tarvel() { "$tarvel" --settings "$settings" "$@"; }

# Hosts for the VNC menu and two tool items in the CPU menu. The first run adds every module's
# first-run values beside them; then the VNC item is switched on, and the preferences no longer
# open by themselves at start.
cat >"$settings" <<'EOF'
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>CPU_EnaMenu_Amon</key>
	<true/>
	<key>CPU_EnaMenu_Tmnl</key>
	<true/>
	<key>Vnc_ClientSortArray</key>
	<array>
		<dict><key>name</key><string>Office Mac</string><key>url</key><string>vnc://office.local</string><key>menu</key><true/></dict>
		<dict><key>name</key><string>Build server</string><key>url</key><string>vnc://10.0.0.5:5901</string><key>menu</key><true/></dict>
	</array>
</dict>
</plist>
EOF
# Qt's offscreen platform talks on standard error; it is shown only when something failed.
quietly() { "$@" >/dev/null 2>"$work/log" || { cat "$work/log" >&2; fail "failed: $*"; }; }
quietly run_tarvel --root "$root" render --out "$work/first" --cycles 1
set_bool() { # key, true or false
  sed -z -i -E "s#(<key>$1</key>[[:space:]]*)<(true|false)/>#\1<$2/>#" "$settings"
  grep -q "<key>$1</key>" "$settings" || fail "the first run wrote no $1"
}
set_bool Vnc_ShowMenu true
set_bool DisplayTopWindowAtStartup false

echo "screenshots: reading $root, and $sensor_root for Temp, Fan and Volume" >&2
mkdir -p "$out"
quietly run_tarvel --root "$root" render --out "$work/main" --panels --scale 1
[ "$sensor_root" = "$root" ] || quietly run_tarvel --root "$sensor_root" render --out "$work/sensors" --panels --scale 1
copy() { # folder, rendered name, name in OUT_DIR
  [ -f "$work/$1/$2.png" ] || fail "tarvel render wrote no $2.png"
  cp "$work/$1/$2.png" "$out/$3.png"
  echo "$out/$3.png"
}
for module in CPU Memory Network Disk Volume Temp Fan General VNC; do
  folder=main
  case $module in Temp | Fan | Volume) [ -d "$work/sensors" ] && folder=sensors ;; esac
  copy "$folder" "$module-dropdown" "dropdown_$(echo "$module" | tr '[:upper:]' '[:lower:]')"
done
copy main preferences-General preferences_top
copy main preferences-CPU preferences_cpu

if [ -z "$probe" ]; then
  echo "screenshots: no screen_probe (a test build has it: ./test.sh); the bar pictures were left as they were" >&2
  exit 1
fi

# The bar window on a virtual screen of its own, once per theme.
screen=(-screen 0 1024x200x24 -nolisten tcp)
if [ -n "${SCREENSHOT_DISPLAY:-}" ]; then
  display=${SCREENSHOT_DISPLAY#:}
  Xvfb ":$display" "${screen[@]}" 2>/dev/null &
  xvfb_pid=$!
else
  # -displayfd: the server takes a free display number and writes it once it is ready.
  Xvfb -displayfd 3 "${screen[@]}" 3>"$work/display" 2>/dev/null &
  xvfb_pid=$!
  for _ in $(seq 100); do
    [ -s "$work/display" ] && break
    sleep 0.1
  done
  [ -s "$work/display" ] || fail "Xvfb did not start"
  display=$(tr -d '[:space:]' <"$work/display")
fi
export DISPLAY=:$display QT_QPA_PLATFORM=xcb
for _ in $(seq 100); do
  xwininfo -root >/dev/null 2>&1 && break
  sleep 0.1
done
xwininfo -root >/dev/null 2>&1 || fail "the virtual screen :$display does not answer"
# A server that could not take the number has gone; whatever answers there is someone else's.
kill -0 "$xvfb_pid" 2>/dev/null || fail "Xvfb could not start on :$display"

bar_picture() { # name in OUT_DIR
  run_tarvel --root "$root" --bar >/dev/null 2>&1 &
  tarvel_pid=$!
  local geometry=
  for _ in $(seq 100); do
    geometry=$(xwininfo -root -children 2>/dev/null | sed -n -E 's/^ *0x[0-9a-f]+ "Tarvel":.* ([0-9]+)x([0-9]+)\+(-?[0-9]+)\+(-?[0-9]+) .*/\3 \4 \1 \2/p' | head -1)
    [ -n "$geometry" ] && break
    sleep 0.1
  done
  [ -n "$geometry" ] || fail "the bar window did not appear"
  # Two cycles, so that the pictures show figures rather than the first zeros.
  sleep 2.5
  # shellcheck disable=SC2086 # the geometry is four numbers
  "$probe" grab "$out/$1.png" $geometry || fail "could not grab the screen"
  kill "$tarvel_pid"
  wait "$tarvel_pid" 2>/dev/null || true
  tarvel_pid=
  echo "$out/$1.png"
}
bar_picture bar_window
# The dark theme names the light one as its alternative, which a light desktop would switch back
# to at start; the copy in use names none.
themes=$XDG_DATA_HOME/Tarvel6
sed -z -E 's#(<key>_AlternativeTheme</key>[[:space:]]*)<string>[^<]*</string>#\1<string>_Untitled_</string>#' \
  "$themes/_dark_theme.plist" >"$themes/_now_theme.plist"
bar_picture bar_window_dark
