#!/bin/bash
# Batch mode on several threads writes what one thread writes, byte for byte, messages and status too.
#   check-batch.sh <numbering executable> <shipped configuration directory>
set -u
tool=$1
. "$(dirname "$0")/common.sh"
export NUMBERING_CONFIG_DIR=$2

# Refused, blank and CRLF lines, a control character, a line longer than a block, no last line break.
long=$(printf '0%.0s' {1..300})
for i in $(seq 400); do
    printf '01 23 45 67 89\n+49 (89) 123456\r\n0123x\n\n  \n+99 1\n+%s\n0612\x01345678\n' "$i"
done >"$work/input"
printf '%s\n0033123456789' "$long" >>"$work/input"

for command in canonical clid decompose; do
    for format in "" --json; do
        # The input fits in one block of the usual size: the reference, cut into blocks of 100 bytes.
        "$tool" $format --jobs 1 $command <"$work/input" >"$work/whole" 2>&1
        echo "status $?" >>"$work/whole"
        status=$(tail -1 "$work/whole") out="" err=""
        [ "$status" = "status 1" ] && [ "$(wc -l <"$work/whole")" -gt 3200 ] ||
            fail "$command $format: too little output"
        for jobs in 1 2 3; do
            # Standard output and error into one file: the messages' places are compared too.
            NUMBERING_BATCH_BLOCK_BYTES=100 "$tool" $format --jobs $jobs $command <"$work/input" \
                >"$work/out" 2>&1
            echo "status $?" >>"$work/out"
            cmp -s "$work/whole" "$work/out" || fail "$command $format --jobs $jobs: differs from one block"
        done
    done
done

# Whole blocks of the usual size through a pipe, which hands them over in pieces of its own.
yes 0612345678 | head -200000 >"$work/large"
cat "$work/large" | "$tool" --jobs 2 canonical >"$work/out2"
"$tool" --jobs 1 canonical <"$work/large" >"$work/out1"
cmp -s "$work/out1" "$work/out2" || fail "large input through a pipe: --jobs 2 differs from --jobs 1"

# A full disk: status 2 and the reason, for a short batch too.
printf '0123456789\n' | "$tool" canonical >/dev/full 2>"$work/err"
status=$? out="" err=$(cat "$work/err")
[ "$status" = 2 ] && [[ "$err" == *"cannot write the results"* ]] || fail "output to a full disk"

finish
