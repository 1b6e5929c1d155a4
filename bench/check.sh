#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Runs every benchmark once, briefly, and counts those that report a time. "ERROR OCCURRED" is what
# the benchmark library prints for one that gave up.

set -u

output=$("$1" --benchmark_min_time=0.001 --benchmark_color=false 2>&1)
status=$?
passed=$(grep -cE '^BM_[^ ]+ +[0-9.e+]+ ns' <<<"$output")
failed=$(grep -c 'ERROR OCCURRED' <<<"$output")
[ "$status" = 0 ] || failed=$((failed + 1))
[ "$failed" = 0 ] || printf '%s\n' "$output"
echo "$passed passed, $failed failed, 0 skipped"
[ "$failed" = 0 ] && [ "$passed" != 0 ]
