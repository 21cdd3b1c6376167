#!/bin/bash
# The command-line tool on the shipped configuration, from the outside: results, batch mode, exit
# codes and messages of every command; with --batch, only batch mode on several threads, which writes
# what one thread writes, byte for byte, messages and status too.
#   check-tool.sh <numbering executable> <shipped configuration directory> [--batch]
set -u
tool=$1
data=$2
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

export NUMBERING_CONFIG_DIR=$data

if [ "${3:-}" = --batch ]; then
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
    exit
fi

run -c FR canonical "01 23 45 67 89"
expect "French installation, canonical" 0 "+33 (0) 1 23 45 67 89"
run -c FR gsm "01 23 45 67 89"
expect "French installation, GSM form" 0 "+33123456789"
run -c DE -x 0 -a 89 canonical 030123456 015123456789
expect "German installation, two numbers as arguments" 0 "+49 (30) 123456"$'\n'"+49 (1512) 3456789"

# One output line for every input line, the last one without its line break included; a CRLF line
# is echoed without its carriage return.
run --stdin $'01 23 45 67 89\r\n\n  \n+49 (89) 123456' -c FR dial
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

# configuration NAME [FILE LINE]: the shipped files, LINE in place of its key's row in FILE ("KEY=": none).
configuration() {
    local directory=$work/$1
    mkdir -p "$directory"
    cp "$data"/*.properties "$directory/"
    [ $# = 3 ] || return
    grep -v "^${3%%=*}=" "$directory/$2" >"$work/file"
    [ "${3#*=}" = "" ] || printf '%s\n' "$3" >>"$work/file"
    mv "$work/file" "$directory/$2"
}
# Configurations for `numbering diff`, a site file with a warning, a file where init wants a directory.
configuration same
configuration masks dlr_cnp_mask_default.properties "Mask_33_1=+C (A) xx xx xx xx x"
configuration prefix dialingrules_default.properties "FR=33:000:EF:0F:0F:France:P"
configuration no-france dialingrules_default.properties "FR="
site=$work/site.properties
printf 'country = FR\next_prefix = 9\nexternal_prefix = 0\n' >"$site"
warning="numbering: $site:3: warning: unknown key 'external_prefix', ignored: the keys are country, ext_prefix, area_codes, local_length, except_length and except_begin"
touch "$work/not-a-directory"

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
--bogus canonical 0123456789|usage: numbering
-l many canonical 0123456789|option -l wants a whole number
-l 1001 canonical 0123456789|option -l wants a whole number from 0 to 1000
--jobs 0 canonical 0123456789|option --jobs wants a whole number from 1 to 1000
-c|option -c wants a value
frobnicate 0123456789|unknown command 'frobnicate'
--config-dir $work canonical 0123456789|no dialing rules in $work/
--config-dir $data explain 123 456|numbering: explain wants one number
check 0123456789|numbering: check takes no number
diff $data $work/nowhere 0123456789|numbering: no dialing rules in $work/nowhere/
diff $data $work/no-france/ 0123456789|numbering: --country: error: Country code 'FR' is not supported by the dialing rules of $work/no-france/
diff $data|diff wants two configuration directories
--site $work/missing.properties diff $data $work/same 0123456789|numbering: cannot open the site file $work/missing.properties: File not found: $work/missing.properties
--site $site diff $data $work/no-france 0123456789|numbering: $site:1: error: Country code 'FR' is not supported by the dialing rules of $work/no-france/
init $work/not-a-directory/sub|numbering: cannot create $work/not-a-directory/sub
EOF_REFUSED

run --help
[ "$status" = 0 ] && [[ "$out" == "usage: numbering"* ]] && [ -z "$err" ] || fail "--help (wanted the usage on stdout)"

unset NUMBERING_CONFIG_DIR
run --config-dir "$data" canonical 0123456789
expect "--config-dir instead of the environment" 0 "+33 (0) 1 23 45 67 89"
# An empty variable is ignored: the library's own directory (not for tests where it exists), else the
# shipped files with a note.
library=/current/tele_mnt/lib_numbering/
if [ ! -e "$library" ]; then
    NUMBERING_CONFIG_DIR= run canonical 0123456789
    expect "empty NUMBERING_CONFIG_DIR" 0 "+33 (0) 1 23 45 67 89" \
        "numbering: note: $library does not exist: reading the shipped configuration in $data (numbering init puts it where the library reads it)"
fi

# `numbering explain`: --json names the decisions; exit statuses.
run --config-dir "$data" -c DE -x 0 -a 89 --json explain "030 1234567"
[ "$status" = 0 ] && [ "$(json kind plan areaCodeFound route outsideLine)" = "National|CountryPlan|Found|LongDistance|Needed;" ] ||
    fail "--json explain: not one object with the decisions"
check 1 "explain of a number that is not one" --config-dir "$data" explain "12a4"

# `numbering check`: the exit status and the output lines follow the worst finding.
check 0 "shipped configuration" check --config-dir "$data"
[ -z "$out" ] || fail "the shipped configuration gives findings"
NUMBERING_CONFIG_DIR=$data check 0 "shipped configuration through NUMBERING_CONFIG_DIR" check

# Notes only: the installation file is in use, its default is not read.
configuration notes
cp "$data/specific_format_activation_default.properties" "$work/notes/specific_format_activation.properties"
check 0 "notes only" check --config-dir "$work/notes"
expect_line "notes only" "$work/notes/specific_format_activation.properties: note: in use: specific_format_activation_default.properties is not read at all (the two files are never merged)"

# Warnings: a switch that switches nothing off.
printf 'cnp_1=on\ncnp_49=off\n' >"$work/notes/specific_format_activation.properties"
check 1 "warnings" check --config-dir "$work/notes"
expect_line "warnings" "$work/notes/specific_format_activation.properties:2: warning: cnp_49 = off switches nothing off: the library keeps only the first valid switch of the file (cnp_1) and files it under calling code 0, so the plan of every calling code stays on"

# Errors: only the French mask. Three missing masks are listed, the others counted, all summed up.
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

# `numbering diff`: the sample from the arguments, standard input or the shipped file.
sample_size=$(grep -c . "$data/sample_numbers.txt")

# Neither the library's directory nor a note about it: diff reads the two directories it names.
NUMBERING_CONFIG_DIR=$work/nowhere run diff "$data" "$work/same/"
expect "identical configurations, the shipped sample" 0 "" "no result differs: $sample_size numbers, 4 commands"
run diff "$data" "$work/masks" "+49 89 123456" 0123456789
expect "a French mask changed, numbers as arguments" 1 \
    "0123456789${tab}canonical${tab}+33 (0) 1 23 45 67 89${tab}+33 (0) 12 34 56 78 9" \
    "1 of 2 numbers converts differently: canonical 1, dial 0, clid 0, gsm 0"
# A caller identity keeps its origin in the same field; blank lines are no numbers.
run --stdin $'+49 89 123456\n\n0049 89 123456\n' diff "$data" "$work/prefix"
expect "the international prefix changed, numbers on standard input" 1 \
    "+49 89 123456${tab}dial${tab}0004989123456${tab}00004989123456
0049 89 123456${tab}canonical${tab}+49 (89) 123456${tab}004989123456
0049 89 123456${tab}clid${tab}4989123456 International${tab}004989123456 Private
0049 89 123456${tab}gsm${tab}+4989123456${tab}004989123456" \
    "2 of 2 numbers convert differently: canonical 1, dial 1, clid 1, gsm 1"

# The installation of a site file, checked under each configuration, its warnings said once.
run --site "$site" diff "$data" "$work/same" 0123456789
expect "a site file, identical configurations" 0 "" "$warning
no result differs: 1 number, 4 commands"

# --json: an object per difference, the site's outside-line prefix dialled; the summary stays text.
run --site "$site" --json diff "$data" "$work/prefix" "+49 89 123456" "0049 89 123456"
[ "$status" = 1 ] && [ "$(json input command old new)" = "+49 89 123456|dial|9004989123456|90004989123456;\
0049 89 123456|canonical|+49 (89) 123456|004989123456;0049 89 123456|clid|4989123456 International|004989123456 Private;\
0049 89 123456|gsm|+4989123456|004989123456;" ] &&
    [ "$err" = "$warning
2 of 2 numbers convert differently: canonical 1, dial 1, clid 1, gsm 1" ] || fail "--json diff with a site file"

# What an installer meets: init, a site file and its check, JSON lines.
export NUMBERING_CONFIG_DIR=$work/library

# init: the library's directory is made and filled; a second run and a changed file keep what is there.
run init
[ "$status" = 0 ] && grep -qxF "wrote $work/library/dialingrules_default.properties" <<<"$out" ||
    fail "init into the library's directory"
echo 'FR = 33:00:EF:0F::France:P' >"$work/library/dialingrules_default.properties"
run init "$work/library"
[ "$status" = 0 ] && ! grep -q '^wrote' <<<"$out" &&
    grep -qxF "kept $work/library/dialingrules_default.properties (already there)" <<<"$out" &&
    [ "$(cat "$work/library/dialingrules_default.properties")" = 'FR = 33:00:EF:0F::France:P' ] ||
    fail "init again (wanted every file kept as it is)"
rm "$work/library/dialingrules_default.properties"
run init
grep -qxF "wrote $work/library/dialingrules_default.properties" <<<"$out" || fail "init after a removal"

# The conversions read the library's directory now that it exists, without a note.
run -c FR canonical 0123456789
expect "conversion on the initialised directory" 0 "+33 (0) 1 23 45 67 89"

# A site file: what it says is the installation; options replace single settings.
printf 'country = DE\next_prefix = 0\narea_codes = 89\n' >"$work/munich.properties"
run --site "$work/munich.properties" canonical 123456
expect "conversion at the installation of a site file" 0 "+49 (89) 123456"
run --site "$work/munich.properties" -a 30 canonical 123456
[ "$out" = "+49 (30) 123456" ] || fail "an option replaces the site file's setting"
run check --site "$work/munich.properties"
[ "$status" = 0 ] && [ -z "$out" ] || fail "check of a clean site file"

# Each broken setting: the exit status of check, the line and the finding (file:line: severity:).
while IFS='|' read -r content wanted_status line; do
    printf '%b' "$content" >"$work/site.properties"
    run check --site "$work/site.properties"
    if [ "$status" != "$wanted_status" ] || ! grep -qF -- "$work/site.properties:$line" <<<"$out"; then
        fail "check --site of '$content' (wanted status $wanted_status and '$line')"
    fi
    run --site "$work/site.properties" dial 0123456789
    if { [ "$wanted_status" = 2 ] && [ "$status" != 2 ]; } || { [ "$wanted_status" = 1 ] && [ "$status" = 2 ]; }; then
        fail "conversion at the site '$content' (refused exactly when check finds errors)"
    fi
done <<'EOF_SITES'
country = DE\next_prefix = 0A|2|2: error: the outside-line prefix '0A'
country = FR\nexcept_begin = 1x|2|2: error: the leading digits of exception numbers '1x'
country = DE\narea_codes = 89, 999|2|2: error: the area code '999' is not one the plan of DE knows
country = DE\narea_codes = 8A|2|2: error: the area code '8A'
country = XX|2|1: error: Country code 'XX' is not supported
country = fr|2|1: error: country codes are written in capitals
ext_prefix = 0|2| error: the installation's country is an ISO 3166 code of two letters
country = FR\nlocal_length = -4|2|2: error: local_length = -4 is no whole number
country = FR\nexternal_prefix = 0|1|2: warning: unknown key 'external_prefix'
EOF_SITES
# A country without area code file takes any area code.
printf 'country = FR\narea_codes = 1, 9\n' >"$work/site.properties"
check 0 "area codes of a country whose plan has no list" check --site "$work/site.properties"
run check --site "$work/missing.properties"
[ "$status" = 2 ] && [[ "$out" == *"cannot open the site file $work/missing.properties"* ]] || fail "check of a missing site file"

# --json: every command's lines parse as JSON, with the members a script reads.
batch=$'0123456789\r\nx"\\\n' # a CRLF line, and a quote and a backslash to escape
while IFS='#' read -r args wanted; do
    eval "run --stdin \"\$batch\" --json $args" # args may quote a number with blanks
    got=$(json command input result origin error)
    [ "$got" = "$wanted" ] || fail "--json $args: got '$got', wanted '$wanted'"
done <<'EOF_JSON'
-c FR dial#dial|0123456789|00123456789|-|-;dial|x"\||-|'x"\' is not a telephone number: 'x' is neither a digit nor one of "+ ()-.*#ABCD";
-c FR clid 0123456789#clid|0123456789|123456789|National|-;
-c FR decompose '+33 (1) 23456789'#decompose|+33 (1) 23456789|{'country': '33', 'area': '1', 'subscriber': '23456789'}|-|-;
EOF_JSON
# check: the summary stays text on standard error, the site file counted among the files.
run check --config-dir "$work/library"
files=$(sed -n 's/^0 errors, 0 warnings, 0 notes in \([0-9]*\) files: the configuration is clean$/\1/p' <<<"$err")
run --json check --site "$work/site.properties" --config-dir "$work/library"
[ "$status" = 0 ] && [ "$(json command)" = "" ] && [ -n "$files" ] &&
    [ "$err" = "0 errors, 0 warnings, 0 notes in $((${files:-0} + 1)) files: the configuration is clean" ] ||
    fail "--json check, clean"
printf 'country = DE\next_prefix = 0A\n' >"$work/site.properties"
run --json check --site "$work/site.properties"
[ "$(json command file line key severity)" = "check|$work/site.properties|2|ext_prefix|error;" ] &&
    [ "$err" = "1 error, 0 warnings, 0 notes in $((${files:-0} + 1)) files" ] || fail "--json check"
run --json init
[ "$(json command result | tr ';' '\n' | sort -u)" = "init|kept" ] || fail "--json init"

finish
