#!/usr/bin/env bash
# Everything that must hold, on a bare Debian bookworm: installs the packages, builds, runs all tests and checks.
# Goes on after a failure, so that one run tells all. The last line is "N passed, N failed" over the tests of
# all stages; each check that is no test program counts as one. Logs: build/log/.
#
#   scripts/test.sh              all stages
#   scripts/test.sh dev format   these stages only
set -uo pipefail
cd "$(dirname "$0")/.." || exit 2
exec </dev/null
source scripts/test_stages.sh

stages=(layers format dev xvfb asan fuzz tidy bench package)
[ $# -eq 0 ] || stages=("$@")

scripts/install_packages.sh test || { echo "the packages could not be installed"; echo "0 passed, 1 failed"; exit 1; }

for stage in "${stages[@]}"; do
    declare -F "stage_$stage" >/dev/null || { echo "no stage $stage"; failed=$((failed + 1)); continue; }
    started=$SECONDS
    "stage_$stage"
    echo "-- $stage took $((SECONDS - started)) s"
done

for what in "${failures[@]}"; do
    echo "FAILED: $what"
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
