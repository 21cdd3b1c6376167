#!/bin/bash
# What an installer meets: `numbering init` keeping the files that are there, the installation in a
# site file and its check, and JSON lines that a JSON parser reads back.
#   check-installer.sh <numbering executable>
set -u
tool=$1
. "$(dirname "$0")/common.sh"
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
touch "$work/not-a-directory"
run init "$work/not-a-directory/sub"
[ "$status" = 2 ] && [[ "$err" == *"cannot create $work/not-a-directory/sub"* ]] || fail "init where no directory can be made"

# The conversions read the library's directory now that it exists, without a note.
run -c FR canonical 0123456789
[ "$status" = 0 ] && [ "$out" = "+33 (0) 1 23 45 67 89" ] && [ -z "$err" ] || fail "conversion on the initialised directory"

# A site file: what it says is the installation; options replace single settings.
printf 'country = DE\next_prefix = 0\narea_codes = 89\n' >"$work/munich.properties"
run --site "$work/munich.properties" canonical 123456
[ "$status" = 0 ] && [ "$out" = "+49 (89) 123456" ] || fail "conversion at the installation of a site file"
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
run check --site "$work/site.properties"
[ "$status" = 0 ] || fail "area codes of a country whose plan has no list"
run check --site "$work/missing.properties"
[ "$status" = 2 ] && [[ "$out" == *"cannot open the site file $work/missing.properties"* ]] || fail "check of a missing site file"
run --site "$work/missing.properties" dial 0123
[ "$status" = 2 ] || fail "conversion with a missing site file"

# CRLF line ends: the input is echoed without its carriage return.
run --stdin $'0123456789\r\n0612345678\r\n' -c FR dial
[ "$out" = $'0123456789\t00123456789\n0612345678\t00612345678' ] || fail "batch with CRLF line ends"

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
