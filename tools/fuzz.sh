#!/usr/bin/env bash
# Builds the libFuzzer harnesses with clang, gathers their seeds from the fixture trees and runs
# each in turn, printing its runs, its coverage and either "no finding" or the crash file.
# usage: tools/fuzz.sh [SECONDS_PER_HARNESS (60)] [HARNESS...]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
seconds=${1:-60}
shift || true
build=$here/build/fuzz
own=$here/tests/fixtures
shared=${TARVEL_SHARED_FIXTURES:-$here/../shared/fixtures}
command -v clang++-14 >/dev/null || { echo "clang++-14 is missing: run tools/setup.sh first"; exit 1; }

CC=clang-14 CXX=clang++-14 cmake -S "$here" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTARVEL_FUZZ=ON \
  -DTARVEL_BUILD_TESTS=OFF -DTARVEL_BUILD_BENCH=OFF ${CMAKE_CXX_COMPILER_LAUNCHER:+-DCMAKE_CXX_COMPILER_LAUNCHER=$CMAKE_CXX_COMPILER_LAUNCHER} >/dev/null
cmake --build "$build" -j"$(nproc)" --target tarvel_fuzzers

# Seeds are copied at run time: the shared tree is not ours to keep in the repository.
seed() { # harness, find expression...
  local harness=$1; shift
  local dir=$build/corpus/$harness
  mkdir -p "$dir"
  local roots=("$own")
  [ -d "$shared/linux-procfs" ] && roots+=("$shared/linux-procfs")
  [ -d "$here/resources/themes" ] && roots+=("$here/resources/themes")
  find "${roots[@]}" -type f -size -256k \( "$@" \) -readable -print0 2>/dev/null |
    while IFS= read -r -d '' file; do cp -f "$file" "$dir/seed-$(sha1sum <"$file" | cut -c1-16)"; done
  # The regression inputs of past findings stay seeds, so that the fuzzer starts from them.
  [ -d "$own/fuzz-findings/$harness" ] && cp -f "$own/fuzz-findings/$harness"/* "$dir/" 2>/dev/null
  return 0
}
seed proc_stat -path '*/proc/stat' -o -path '*stat-second-sample'
seed meminfo -path '*/proc/meminfo' -o -path '*/proc/vmstat' -o -path '*/proc/swaps'
seed net_dev -path '*/proc/net/dev'
seed diskstats -path '*/proc/diskstats'
seed loadavg -path '*/proc/loadavg' -o -path '*/proc/uptime'
seed cpuinfo -path '*/proc/cpuinfo'
seed process_stat -regex '.*/proc/[0-9]+/stat'
seed mountinfo -name mountinfo -o -path '*/proc/mounts'
seed hwmon -path '*hwmon*' \( -name '*_input' -o -name '*_label' -o -name name \)
seed plist -name '*.plist' -o -name '*.vncloc'
seed desktop_entry -name '*.desktop'
seed vnc_hosts -name '*.remmina' -o -name '*.history' -o -name '*.vncloc'
mkdir -p "$build/corpus/http_answers"
printf '203.0.113.7\n' >"$build/corpus/http_answers/plain"
printf '<html><body>Current IP Address: 198.51.100.2</body></html>' >"$build/corpus/http_answers/html"
printf '060513' >"$build/corpus/http_answers/version"
printf 'status=0\nOK' >"$build/corpus/http_answers/ddns"
seed http_answers -path '*/fuzz-findings/http_answers/*'

harnesses=("$@")
[ ${#harnesses[@]} -gt 0 ] || harnesses=(proc_stat meminfo net_dev diskstats loadavg cpuinfo process_stat mountinfo
                                          hwmon plist desktop_entry http_answers vnc_hosts)
mkdir -p "$build/findings"
export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
found=0
for harness in "${harnesses[@]}"; do
  log=$build/findings/$harness.log
  status=0
  "$build/fuzz/fuzz_$harness" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="$build/findings/$harness-" "$build/corpus/$harness" >"$log" 2>&1 || status=$?
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
  coverage=$(grep -o 'cov: [0-9]*' "$log" | tail -1 | cut -d' ' -f2)
  crash=$(sed -n 's/.*Test unit written to \(.*\)$/\1/p' "$log" | tail -1)
  if [ "$status" -eq 0 ] && [ -z "$crash" ]; then
    result="no finding"
  else
    result="FINDING ${crash:-(see $log)}"
    found=1
  fi
  printf '%-14s runs %-10s coverage %-6s %s\n' "$harness" "${runs:-?}" "${coverage:-?}" "$result"
done
exit "$found"
