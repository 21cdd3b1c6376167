#!/bin/bash
# The command-line tool on the shipped configuration, from the outside: results, batch mode, exit
# codes and messages.
#   check-tool.sh <numbering executable> <shipped configuration directory>
set -u
tool=$1
data=$2
failures=0
tab=$'\t'
empty_dir=$(mktemp -d)
trap 'rm -rf "$empty_dir"' EXIT

# run [--stdin TEXT] ARGS...: runs the tool; sets out, err and status.
run() {
    local input=""
    if [ "${1:-}" = "--stdin" ]; then
        input=$2
        shift 2
    fi
    local errfile
    errfile=$(mktemp)
    out=$(printf '%s' "$input" | "$tool" "$@" 2>"$errfile")
    status=$?
    err=$(cat "$errfile")
    rm -f "$errfile"
}

fail() {
    echo "FAIL: $1"
    echo "  exit status: $status"
    echo "  stdout: $out"
    echo "  stderr: $err"
    failures=$((failures + 1))
}

# expect NAME STATUS STDOUT: exact exit status and standard output, nothing on standard error.
expect() {
    if [ "$status" != "$2" ] || [ "$out" != "$3" ] || [ -n "$err" ]; then
        fail "$1 (wanted status $2 and stdout '$3')"
    fi
}

# expect_error NAME STATUS TEXT: exit status, empty standard output, TEXT on standard error.
expect_error() {
    if [ "$status" != "$2" ] || [ -n "$out" ] || [[ "$err" != *"$3"* ]]; then
        fail "$1 (wanted status $2 and '$3' on stderr)"
    fi
}

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
if [ "$status" != 1 ] || [ "$out" != "0123456789${tab}+33 (0) 1 23 45 67 89"$'\n'"0123x${tab}"$'\n'"+99 1${tab}" ] ||
    [ "$err" != "numbering: line 2: '0123x' is not a telephone number: 'x' is neither a digit nor one of \"+ ()-.*#ABCD\""$'\n'"numbering: line 3: '+99 1': no result from the library (canonical, installation in FR; --trace shows why)" ]; then
    fail "batch with numbers that cannot be converted (wanted status 1, empty results and one line each)"
fi

run -c FR canonical ""
if [ "$status" != 1 ] || [ -n "$out" ] || [ "$err" != "numbering: empty number: nothing to convert" ]; then
    fail "empty number as argument"
fi

# With --trace the library's own lines follow, numbers escaped: none can pass for a line of its own.
run --trace -c FR canonical $'12\nERROR fake\e[2J'
if [ "$status" != 1 ] || [[ "$err" != *"PhoneNumber: '12\\nERROR fake\\x1b[2J'"* ]] ||
    grep -q '^ERROR fake' <<<"$err" || [[ "$err" == *$'\e'* ]]; then
    fail "--trace with control characters in the number (wanted them escaped)"
fi

run -c XX canonical 0123456789
expect_error "unknown country" 2 "Country code 'XX' is not supported"

run -c FRA canonical 0123456789
expect_error "country code of three letters" 2 "ISO 3166 code of two letters, such as FR or DE, not 'FRA'"

run -c fr canonical 0123456789
expect_error "country code in lower case" 2 "country codes are written in capitals: -c FR"

run --bogus canonical 0123456789
expect_error "unknown long option" 2 "unknown option --bogus"
[[ "$err" == *"usage: numbering"* ]] || fail "unknown long option: usage on stderr"

run -l many canonical 0123456789
expect_error "length that is not a number" 2 "option -l wants a whole number"

run -c
expect_error "option without its value" 2 "option -c wants a value"

run frobnicate 0123456789
expect_error "unknown command" 2 "unknown command 'frobnicate'"

run --help
if [ "$status" != 0 ] || [[ "$out" != "usage: numbering"* ]] || [ -n "$err" ]; then
    fail "--help (wanted the usage on stdout and status 0)"
fi

run --config-dir "$empty_dir" canonical 0123456789
expect_error "configuration directory without dialing rules" 2 "no dialing rules in"

unset NUMBERING_CONFIG_DIR
run --config-dir "$data" canonical 0123456789
expect "--config-dir instead of the environment" 0 "+33 (0) 1 23 45 67 89"

# An empty variable is ignored by the library, so the tool falls back on the shipped files.
NUMBERING_CONFIG_DIR= run canonical 0123456789
expect "empty NUMBERING_CONFIG_DIR" 0 "+33 (0) 1 23 45 67 89"

if [ "$failures" -ne 0 ]; then
    echo "$failures check(s) failed"
    exit 1
fi
echo "all checks passed"
