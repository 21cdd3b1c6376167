#!/bin/bash
# `numbering check` from the outside: the shipped configuration checks clean, and the exit status
# and the output lines follow the worst finding.
#   check-command.sh <numbering executable> <shipped configuration directory>
set -u
tool=$1
data=$2
. "$(dirname "$0")/common.sh"

# check EXPECTED_STATUS NAME ARGS...: runs the tool and checks its exit status; sets out, err, status.
check() {
    local expected=$1 name=$2
    shift 2
    run "$@"
    [ "$status" = "$expected" ] || fail "$name (exit status $status, wanted $expected)"
}

# expect_line NAME LINE: LINE is one of the lines on standard output.
expect_line() { grep -qxF -- "$2" <<<"$out" || fail "$1: no line '$2'"; }

check 0 "shipped configuration" check --config-dir "$data"
[ -z "$out" ] || fail "the shipped configuration gives findings"
[[ "$err" =~ ^"0 errors, 0 warnings, 0 notes in "[0-9]+" files: the configuration is clean"$ ]] ||
    fail "the shipped configuration: no line saying that it is clean"
NUMBERING_CONFIG_DIR=$data check 0 "shipped configuration through NUMBERING_CONFIG_DIR" check

# Notes only: the installation file is in use, its default is not read.
mkdir "$work/notes"
cp "$data"/*.properties "$work/notes/"
cp "$data/specific_format_activation_default.properties" "$work/notes/specific_format_activation.properties"
check 0 "notes only" check --config-dir "$work/notes"
expect_line "notes only" "$work/notes/specific_format_activation.properties: note: in use: specific_format_activation_default.properties is not read at all (the two files are never merged)"

# Warnings: a switch that switches nothing off.
printf 'cnp_1=on\ncnp_49=off\n' >"$work/notes/specific_format_activation.properties"
check 1 "warnings" check --config-dir "$work/notes"
expect_line "warnings" "$work/notes/specific_format_activation.properties:2: warning: cnp_49 = off switches nothing off: the library keeps only the first valid switch of the file (cnp_1) and files it under calling code 0, so the plan of every calling code stays on"

# Errors: an installation holding only the French mask. Three of the missing masks are listed, the
# others counted, all of them in the summary.
printf 'Mask_33_1=+C (A) x xx xx xx xx\n' >"$work/notes/dlr_cnp_mask.properties"
check 2 "errors" check --config-dir "$work/notes"
expect_line "errors" "$work/notes/dlr_cnp_mask.properties: error: no mask for +20 (EG): without one a canonical number keeps only its subscriber number, so \"+20 (89) 123456\" becomes \"123456\", which no longer names the country and is dialled as a local number"
[ "$(grep -c 'error: no mask for' <<<"$out")" = 3 ] || fail "errors: not three missing masks listed"
more=$(sed -n 's/^.*dlr_cnp_mask.properties: error: and \([0-9]*\) more like it, not listed one by one$/\1/p' <<<"$out")
[ -n "$more" ] || fail "errors: no line counting the other missing masks"
[ "$err" = "$((${more:-0} + 3)) errors, 2 warnings, 2 notes in 13 files" ] || fail "errors: summary"
run --json check --config-dir "$work/notes"
[ "$(json alike | tr ';' '\n' | grep -v '^-$')" = "$more" ] && [[ "$err" == "$((${more:-0} + 3)) errors,"* ]] ||
    fail "--json errors: the counted line's alike, the summary as text on standard error"

check 2 "an empty directory" check --config-dir "$work/empty-directory"
check 2 "a number after check" check 0123456789
[[ "$err" == *"check takes no number"* ]] || fail "a number after check"

finish
