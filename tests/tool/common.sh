# Sourced by the shell checks of the tool named $tool: a scratch directory $work, runs and verdicts.
failures=0
tab=$'\t'
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# run [--stdin TEXT] ARGS...: runs the tool; sets out, err and status.
run() {
    local input=""
    if [ "${1:-}" = "--stdin" ]; then
        input=$2
        shift 2
    fi
    out=$(printf '%s' "$input" | "$tool" "$@" 2>"$work/err")
    status=$?
    err=$(cat "$work/err")
}

fail() {
    printf 'FAIL: %s\n  exit status: %s\n  stdout: %s\n  stderr: %s\n' "$1" "$status" "$out" "$err"
    failures=$((failures + 1))
}

# check STATUS NAME ARGS...: runs the tool; fails NAME unless it exits with STATUS.
check() {
    local expected=$1 name=$2
    shift 2
    run "$@"
    [ "$status" = "$expected" ] || fail "$name (exit status $status, wanted $expected)"
}

# expect_line NAME LINE: LINE is one of the lines on standard output.
expect_line() { grep -qxF -- "$2" <<<"$out" || fail "$1: no line '$2'"; }

# expect NAME STATUS STDOUT [STDERR]: exact exit status and output, standard error empty unless given.
expect() {
    if [ "$status" != "$2" ] || [ "$out" != "$3" ] || [ "$err" != "${4:-}" ]; then
        fail "$1 (wanted status $2, stdout '$3' and stderr '${4:-}')"
    fi
}

# json KEY...: each JSON line of $out as its members KEY... joined by '|' ('-' if missing), then ';'.
json() {
    python3 -c '
import json, sys
for line in filter(str.strip, sys.stdin):
    obj = json.loads(line)
    print("|".join(str(obj.get(k, "-")) for k in sys.argv[1:]), end=";")' "$@" <<<"$out" 2>&1
}

finish() {
    if [ "$failures" -ne 0 ]; then
        echo "$failures check(s) failed"
        exit 1
    fi
    echo "all checks passed"
}
