#!/usr/bin/env bash
# Checks an installed Tarvel below ROOT ("/" or a DESTDIR): desktop entry, icons, AppStream data,
# manual page against the program's own help, and the Debian documentation files.
# usage: check_install_tree.sh ROOT [TARVEL]   (TARVEL: the program whose --help the page must cover)
set -uo pipefail
root=${1:?usage: check_install_tree.sh ROOT [TARVEL]}
root=${root%/}
tarvel=${2:-$root/usr/bin/tarvel}
share=$root/usr/share
source "$(dirname "${BASH_SOURCE[0]}")/check_steps.sh"
# Tools that print their complaints but exit 0 (man's warnings): any output is a failure.
silent() { local said; said=$("$@" 2>&1 >/dev/null); [ -z "$said" ] || { echo "$said"; return 1; }; }

desktop=$share/applications/tarvel.desktop
check "desktop entry valid" desktop-file-validate "$desktop"
check "desktop entry starts the program on the PATH" grep -qx 'Exec=tarvel' "$desktop"
check "program installed and executable" test -x "$root/usr/bin/tarvel"
# tarvel looks for the desktop program relative to its own folder.
check "desktop program installed where tarvel looks for it" test -x "$root/usr/libexec/tarvel/tarvel-desktop"
check "tarvel itself needs no widget toolkit" test -z "$(readelf -d "$root/usr/bin/tarvel" | grep -F libQt6Widgets)"
check "desktop entry in System;Monitor;" grep -qx 'Categories=System;Monitor;' "$desktop"

icon=$(sed -n 's/^Icon=//p' "$desktop")
check "scalable icon" test -s "$share/icons/hicolor/scalable/apps/$icon.svg"
for size in 16 22 24 32 48 64 128 256; do
  check "${size}px icon" grep -q "PNG image data, $size x $size," \
    <(file "$share/icons/hicolor/${size}x$size/apps/$icon.png")
done

# Other packages' metainfo files share the folder: ours is the one that launches our entry.
metainfo=$(grep -l '<launchable type="desktop-id">tarvel.desktop<' "$share"/metainfo/*.metainfo.xml 2>/dev/null)
check "one metainfo file launches the desktop entry" test "$(echo "$metainfo" | grep -c .)" -eq 1
check "metainfo valid" appstreamcli validate --no-net "$metainfo"

page=$share/man/man1/tarvel.1.gz
check "manual page compressed" gzip -t "$page"
check "manual page has a whatis line" lexgrog "$page"
check "manual page formats without warnings" silent env MANWIDTH=80 man --warnings -l "$page"
# Every option and command of the help, as the page's roff source spells it (\- for a dash).
source_text=$(zcat "$page" 2>/dev/null | sed 's/\\-/-/g')
help=$("$tarvel" --help)
for option in $(grep -oE '(^|[ [,])--?[a-z][a-z-]*' <<<"$help" | sed 's/^[ [,]//' | sort -u); do
  check "manual page names $option" grep -qE -- "(^|[^a-z-])$option([^a-z-]|$)" <<<"$source_text"
done
for command in $(sed -n '/^Commands:/,/^Options:/s/^  \([a-z][a-z-]*\) .*/\1/p' <<<"$help" | sort -u); do
  check "manual page shows the $command command" grep -qE "^\.B tarvel $command( |$)" <<<"$source_text"
done

doc=$share/doc/tarvel
check "copyright file" grep -q '^Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/' "$doc/copyright"
version=$("$tarvel" --version | awk '{print $2}')
check "changelog's newest entry is version $version" \
  test "$(zcat "$doc/changelog.gz" | sed -n '1s/^tarvel (\([^)]*\)).*/\1/p')" = "$version"

checkSummary checks
