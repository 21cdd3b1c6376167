#!/bin/bash
# `numbering diff` from the outside: identical and differing configurations, the sample from the
# arguments, standard input or the shipped file, and the exit statuses.
#   check-diff.sh <numbering executable> <shipped configuration directory>
set -u
tool=$1
data=$2
. "$(dirname "$0")/common.sh"

# configuration NAME [FILE LINE]: a copy of the shipped files, LINE in place of the row of its key
# in FILE ("KEY=" only: the row removed).
configuration() {
    local directory=$work/$1
    mkdir -p "$directory"
    cp "$data"/*.properties "$directory/"
    [ $# = 3 ] || return
    grep -v "^${3%%=*}=" "$directory/$2" >"$work/file"
    [ "${3#*=}" = "" ] || printf '%s\n' "$3" >>"$work/file"
    mv "$work/file" "$directory/$2"
}
configuration same
configuration masks dlr_cnp_mask_default.properties "Mask_33_1=+C (A) xx xx xx xx x"
configuration prefix dialingrules_default.properties "FR=33:000:EF:0F:0F:France:P"
configuration no-france dialingrules_default.properties "FR="
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

# Errors: nothing compared, status 2.
run diff "$data" "$work/nowhere" 0123456789
expect "a directory without dialing rules" 2 "" "numbering: no dialing rules in $work/nowhere/"
run diff "$data" "$work/no-france/" 0123456789
expect "the installation's country unknown to the new configuration" 2 "" \
    "numbering: --country: error: Country code 'FR' is not supported by the dialing rules of $work/no-france/"
run diff "$data"
[ "$status" = 2 ] && [[ "$err" == *"diff wants two configuration directories"* ]] ||
    expect "one directory only" 2 "" "diff wants two configuration directories"

# The installation of a site file, checked under each configuration, its warnings said once.
site=$work/site.properties
printf 'country = FR\next_prefix = 9\nexternal_prefix = 0\n' >"$site"
warning="numbering: $site:3: warning: unknown key 'external_prefix', ignored: the keys are country, ext_prefix, area_codes, local_length, except_length and except_begin"
run --site "$site" diff "$data" "$work/same" 0123456789
expect "a site file, identical configurations" 0 "" "$warning
no result differs: 1 number, 4 commands"
run --site "$site" diff "$data" "$work/no-france" 0123456789
expect "a site file whose country the new configuration does not know" 2 "" "$warning
numbering: $site:1: error: Country code 'FR' is not supported by the dialing rules of $work/no-france/"
run --site "$work/missing.properties" diff "$data" "$work/same" 0123456789
expect "a missing site file" 2 "" \
    "numbering: cannot open the site file $work/missing.properties: File not found: $work/missing.properties"

# --json: one object per difference, the site's outside-line prefix in the numbers dialled; the
# summary stays text on standard error.
run --site "$site" --json diff "$data" "$work/prefix" "+49 89 123456" "0049 89 123456"
[ "$status" = 1 ] && [ "$(json input command old new)" = "+49 89 123456|dial|9004989123456|90004989123456;\
0049 89 123456|canonical|+49 (89) 123456|004989123456;0049 89 123456|clid|4989123456 International|004989123456 Private;\
0049 89 123456|gsm|+4989123456|004989123456;" ] &&
    [ "$err" = "$warning
2 of 2 numbers convert differently: canonical 1, dial 1, clid 1, gsm 1" ] || fail "--json diff with a site file"

finish
