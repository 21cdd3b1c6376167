#!/bin/bash
# The command-line tool on the shipped configuration, from the outside: results, batch mode, exit
# codes and messages.
#   check-tool.sh <numbering executable> <shipped configuration directory>
set -u
tool=$1
data=$2
. "$(dirname "$0")/common.sh"
export NUMBERING_CONFIG_DIR=$data

run -c FR canonical "01 23 45 67 89"
expect "French installation, canonical" 0 "+33 (0) 1 23 45 67 89"
run -c FR dial "+49 (89) 123456"
expect "French installation, dialling Munich" 0 "0004989123456"
run -c FR gsm "01 23 45 67 89"
expect "French installation, GSM form" 0 "+33123456789"
run -c DE -x 0 -a 89 canonical 030123456 015123456789
expect "German installation, two numbers as arguments" 0 "+49 (30) 123456"$'\n'"+49 (1512) 3456789"

# One output line for every input line, the last one without its line break included.
run --stdin $'01 23 45 67 89\n\n  \n+49 (89) 123456' -c FR dial
expect "batch from standard input, empty lines kept in place" 0 \
    "01 23 45 67 89${tab}00123456789"$'\n'"${tab}"$'\n'"  ${tab}"$'\n'"+49 (89) 123456${tab}0004989123456"

# A number the library rejects: an empty result in its place and one line of the tool's own.
run --stdin $'0123456789\n0123x\n+99 1\n' -c FR canonical
expect "batch with numbers that cannot be converted" 1 \
    "0123456789${tab}+33 (0) 1 23 45 67 89"$'\n'"0123x${tab}"$'\n'"+99 1${tab}" \
    "numbering: line 2: '0123x' is not a telephone number: 'x' is neither a digit nor one of \"+ ()-.*#ABCD\""$'\n'"numbering: line 3: '+99 1': no result from the library (canonical, installation in FR; --trace shows why)"

run -c FR -l 1000 canonical 0123456789
expect "the longest local length" 0 "+33 (0) 1 23 45 67 89"
run -c FR canonical ""
expect "empty number as argument" 1 "" "numbering: empty number: nothing to convert"

# With --trace the library's own lines follow, numbers escaped: none can pass for a line of its own.
run --trace -c FR canonical $'12\nERROR fake\e[2J'
if [ "$status" != 1 ] || [[ "$err" != *"PhoneNumber: '12\\nERROR fake\\x1b[2J'"* ]] ||
    grep -q '^ERROR fake' <<<"$err" || [[ "$err" == *$'\e'* ]]; then
    fail "--trace with control characters in the number (wanted them escaped)"
fi

# Refused invocations: status 2, nothing on standard output, the reason on standard error.
while IFS='|' read -r args reason; do
    run $args
    if [ "$status" != 2 ] || [ -n "$out" ] || [[ "$err" != *"$reason"* ]]; then
        fail "$args (wanted status 2 and '$reason' on stderr)"
    fi
done <<EOF_REFUSED
-c XX canonical 0123456789|Country code 'XX' is not supported
-c FRA canonical 0123456789|ISO 3166 code of two letters, such as FR or DE, not 'FRA'
-c fr canonical 0123456789|--country: error: country codes are written in capitals: FR, not fr
-x 0A dial 0123456789|--ext-prefix: error: the outside-line prefix '0A' holds 'A', which is no digit
--bogus canonical 0123456789|unknown option --bogus
-l many canonical 0123456789|option -l wants a whole number
-l 1001 canonical 0123456789|option -l wants a whole number from 0 to 1000
--jobs 0 canonical 0123456789|option --jobs wants a whole number from 1 to 1000
-c|option -c wants a value
frobnicate 0123456789|unknown command 'frobnicate'
--config-dir $work canonical 0123456789|no dialing rules in $work/
EOF_REFUSED
run --bogus canonical 0123456789
[[ "$err" == *"usage: numbering"* ]] || fail "unknown option: usage on stderr"

run --help
[ "$status" = 0 ] && [[ "$out" == "usage: numbering"* ]] && [ -z "$err" ] || fail "--help (wanted the usage on stdout)"

unset NUMBERING_CONFIG_DIR
run --config-dir "$data" canonical 0123456789
expect "--config-dir instead of the environment" 0 "+33 (0) 1 23 45 67 89"
# An empty variable is ignored by the library, so the tool reads the library's own directory, else
# falls back on the shipped files and says so (the real directory, if this machine has one, is not
# for tests).
library=/current/tele_mnt/lib_numbering/
if [ ! -e "$library" ]; then
    NUMBERING_CONFIG_DIR= run canonical 0123456789
    expect "empty NUMBERING_CONFIG_DIR" 0 "+33 (0) 1 23 45 67 89" \
        "numbering: note: $library does not exist: reading the shipped configuration in $data (numbering init puts it where the library reads it)"
fi

finish
