#!/bin/bash
# The manual page renders without a warning of groff, with the sections a reader looks for.
#   check-manual.sh <numbering.1>
set -u
page=$1
warnings=$(groff -man -ww -z "$page" 2>&1) || { echo "groff failed: $warnings"; exit 1; }
if [ -n "$warnings" ]; then
    echo "groff warns about $page:"
    echo "$warnings"
    exit 1
fi
text=$(groff -man -Tutf8 "$page" 2>&1)
for section in NAME SYNOPSIS COMMANDS OPTIONS "BATCH MODE" "EXIT STATUS" EXAMPLES; do
    grep -q "^$section\$" <<<"$(sed 's/\x1b\[[0-9;]*m//g; s/.\x08//g' <<<"$text")" ||
        { echo "section $section missing"; exit 1; }
done
echo "manual page renders cleanly"
