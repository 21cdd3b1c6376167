#!/bin/sh
# Writes the symbols file of the library package: every symbol the library exports, each said to
# come with the version being built (a dependency never older than what a program may use).
#   symbols.sh <library> <SONAME> <package> <development package> <version> <output>
set -eu
mkdir -p "$(dirname "$6")"
library=$1 soname=$2 package=$3 development=$4 version=$5 output=$6
{
    echo "$soname $package #MINVER#"
    echo "* Build-Depends-Package: $development"
    nm -D --defined-only "$library" | awk -v version="$version" '{ print " " $3 "@Base " version }' | LC_ALL=C sort
} >"$output"
