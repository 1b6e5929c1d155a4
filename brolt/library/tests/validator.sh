#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# validator.sh COMMAND...
#
# The VST3 SDK's validator on the bundle that stands beside it, its standard and its extensive suite,
# each of its tests counted as one of ours. The arguments are the command that starts the validator.

set -u
validator=("$@")
program=${validator[${#validator[@]} - 1]}
bundle=$(dirname "$program")/QMBrolt.vst3
# Wine's programs take a leading slash for something else.
[[ $program != *.exe ]] || bundle=Z:$bundle

# What a run may take; the SDK's own threads have been seen to wait for each other.
secondsPerSuite=300

# Tests that must fail, each as "suite / test=reason": where the format's rules for this product are
# others than the validator's. A test that is listed here and passes is a mistake.
requiredFailures=(
    "Single Precision (32 bit) Tests / Parameter Bypass persistence=settings records skip the master bypass: whether a track is bypassed belongs to the session and does not come back with a state"
)

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
report=$folder/report

passed=0
failed=0
skipped=0
declare -A listedAndRun=()

# fail WHAT [FIRST LAST]: with these lines of the report.
fail() {
    failed=$((failed + 1))
    echo "FAILED: $1"
    [ $# -lt 3 ] || sed -n "$2,$3s/^/  /p" "$report"
}

# reasonFor TEST: empty unless the test is listed.
reasonFor() {
    local entry
    for entry in ${requiredFailures[@]+"${requiredFailures[@]}"}; do
        [ "${entry%%=*}" != "$1" ] || printf '%s' "${entry#*=}"
    done
}

# outcomes: for each test in the report its outcome, the line numbers of its report and its name.
# Besides passed and failed there are tests that could not be prepared, which the validator does not
# count, and such that passed and could not be tidied up; "unfinished" is what it was at when it ended.
outcomes() {
    awk '
        function finish() {
            if (name != "") { printf "%s\t%d\t%d\t%s\n", outcome, first, last, name }
            name = ""
        }
        /^TestSuite : / { finish(); suite = substr($0, 13); next }
        /^-----/ || /^Result: / { finish(); next }
        name != "" && /^\[Succeeded\]$/ { outcome = "passed"; last = NR; next }
        name != "" && /^\[XXXXXXX Failed\]$/ { outcome = "failed"; last = NR; next }
        name != "" && /^Failed to setup test!$/ { outcome = "unprepared"; last = NR; next }
        name != "" && /^Failed to teardown test!$/ {
            if (outcome == "passed") { outcome = "untidy" }
            last = NR
            next
        }
        /^\[.*\]$/ {
            finish()
            name = suite " / " substr($0, 2, length($0) - 2)
            outcome = "unfinished"
            first = NR
        }
        { if (outcome == "unfinished") { last = NR } }
        END { finish() }' "$report"
}

countTest() {
    local run=$1 outcome=$2 first=$3 last=$4 name=$5 reason
    reason=$(reasonFor "$name")
    [ -z "$reason" ] || listedAndRun[$name]=yes
    case $outcome in
        passed)
            if [ -z "$reason" ]; then
                passed=$((passed + 1))
            else
                fail "$run: $name: passes and no longer needs to be listed"
            fi
            ;;
        failed)
            if [ -z "$reason" ]; then
                fail "$run: $name" "$first" "$last"
            else
                skipped=$((skipped + 1))
                echo "SKIP $run: $name: $reason"
            fi
            ;;
        *) fail "$run: $name: $outcome" "$first" "$last" ;;
    esac
}

# runSuite RUN OPTION...: one run of the validator and the count of its tests.
runSuite() {
    local run=$1 status outcome first last name resultLine
    local good=0 bad=0
    shift
    timeout --kill-after=10 "$secondsPerSuite" "${validator[@]}" "$@" "$bundle" \
        >"$report.raw" 2>"$folder/errors" </dev/null
    status=$?
    tr -d '\r' <"$report.raw" >"$report"

    while IFS=$'\t' read -r outcome first last name; do
        case $outcome in
            passed | untidy) good=$((good + 1)) ;;
            failed) bad=$((bad + 1)) ;;
        esac
        countTest "$run" "$outcome" "$first" "$last" "$name"
    done < <(outcomes)

    resultLine=$(grep '^Result: ' "$report")
    if [ -z "$resultLine" ]; then
        fail "$run: the validator ended without a result, with exit status $status"
        tail -n 20 "$report" | sed 's/^/  /'
    elif [ "$good" = 0 ]; then
        fail "$run: no test passed; the validator says '$resultLine'"
    elif [ "$resultLine" != "Result: $good tests passed, $bad tests failed" ]; then
        fail "$run: counted $good passed, $bad failed; the validator says '$resultLine'"
        grep -iE '^(error|warning)' "$report" | sed 's/^/  /'
    elif [ "$status" != 0 ] && { [ "$bad" = 0 ] || [ "$status" != 255 ]; }; then
        fail "$run: after its result the validator ended with exit status $status"
    else
        return
    fi
    sed 's/^/  stderr: /' "$folder/errors"
}

runSuite standard
runSuite extensive -e

for entry in ${requiredFailures[@]+"${requiredFailures[@]}"}; do
    [ -n "${listedAndRun[${entry%%=*}]:-}" ] || fail "${entry%%=*}: is listed, but there is no such test"
done

echo "$passed passed, $failed failed, $skipped skipped"
[ "$failed" = 0 ] && [ "$passed" != 0 ]
