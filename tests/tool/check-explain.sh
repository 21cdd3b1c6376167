#!/bin/bash
# `numbering explain`: its --json output is one JSON object naming the decisions; exit statuses.
#   check-explain.sh <numbering executable> <shipped configuration directory>
set -u
tool=$1
data=$2
. "$(dirname "$0")/common.sh"

run --config-dir "$data" -c DE -x 0 -a 89 --json explain "030 1234567"
[ "$status" = 0 ] && [ "$(json kind plan areaCodeFound route outsideLine)" = "National|CountryPlan|Found|LongDistance|Needed;" ] ||
    fail "--json explain: not one object with the decisions"
run --config-dir "$data" explain "12a4"
[ "$status" = 1 ] || fail "explain of a number that is not one"
run --config-dir "$data" explain 123 456
[ "$status" = 2 ] || fail "explain of two numbers"

finish
