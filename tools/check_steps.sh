# Counted checks for the packaging scripts: each check prints "ok:" or "FAIL:" with what it
# checked (and, on failure, what the command said); checkSummary ends the script with the count.
passed=0 failed=0
pass() { passed=$((passed + 1)); echo "ok: $1"; }
fail() { failed=$((failed + 1)); echo "FAIL: $1"; }
check() { # description, command...
  local what=$1; shift
  local said
  if said=$("$@" 2>&1); then pass "$what"; else fail "$what"; [ -n "$said" ] && echo "$said" | sed 's/^/    /'; fi
}
checkSummary() { # label
  echo "$1: $passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}
