#!/usr/bin/env bash
# Fails when a text the sources show the user has no finished translation in the given catalogue.
# Usage: check_translations.sh LUPDATE SOURCE_DIR CATALOGUE.ts
set -euo pipefail
lupdate=$1 sources=$2 catalogue=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$catalogue" "$work/check.ts"

# lupdate only sees what it can parse: Tarvel::localized("...") and Tarvel::textKey("...").
"$lupdate" -tr-function-alias tr+=localized,tr+=textKey -extensions cpp,h -locations none -no-obsolete \
  "$sources" -ts "$work/check.ts" > "$work/lupdate.log" 2>&1 || { cat "$work/lupdate.log"; exit 1; }

python3 - "$work/check.ts" "$work/lupdate.log" "$(basename "$catalogue")" <<'PY'
import sys
import xml.etree.ElementTree as ET

ts, log, name = sys.argv[1:4]
problems = []
for line in open(log, encoding="utf-8"):
    if "cannot be called without context" in line:
        problems.append("unqualified call (write Tarvel::localized): " + line.strip())
for context in ET.parse(ts).getroot().iter("context"):
    where = context.findtext("name")
    for message in context.iter("message"):
        source = message.findtext("source")
        translation = message.find("translation")
        if where != "Tarvel":
            problems.append(f"looked up under the wrong context {where!r}: {source!r}")
        elif translation is None or translation.get("type") == "unfinished" or not (translation.text or "").strip():
            problems.append(f"no translation: {source!r}")
for problem in problems:
    print(problem)
total = sum(1 for _ in ET.parse(ts).getroot().iter("message"))
print(f"{name}: {total} texts, {len(problems)} missing or unfinished")
sys.exit(1 if problems else 0)
PY
