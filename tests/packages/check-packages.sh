#!/usr/bin/env bash
# The Debian packages: what each holds, no lintian tag of any level, and unpacked as an installer
# uses them: numbering init, a conversion, a program's flags from pkg-config.
#   check-packages.sh <build directory> <source directory>
set -euo pipefail
build_dir=$1
source_dir=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

if ! cpack --config "$build_dir/CPackConfig.cmake" -G DEB -B "$work" >"$work/cpack.log" 2>&1; then
    cat "$work/cpack.log"
    exit 1
fi
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
version=$(sed -n '1s/^[^(]*(\([^)]*\)).*/\1/p' "$source_dir/packaging/debian/changelog")

# holds <package> <path pattern>...: the package has a file matching each pattern.
holds() {
    local package=$1 pattern listing
    shift
    listing=$(dpkg-deb --contents "$work/$package"_*.deb | awk '{print $6}')
    for pattern in "$@"; do
        if ! grep -qx "$pattern" <<<"$listing"; then
            echo "$package: nothing matches $pattern"
            return 1
        fi
    done
}
holds libnumbering2 "\./usr/lib/$multiarch/libNumbering\.so\.2\..*" "\./usr/share/doc/libnumbering2/copyright"
holds libnumbering-dev "\./usr/lib/$multiarch/libNumbering\.so" "\./usr/include/numbering/Version\.h" \
    "\./usr/lib/$multiarch/cmake/Numbering/NumberingConfig\.cmake" "\./usr/lib/$multiarch/pkgconfig/numbering\.pc"
holds numbering "\./usr/bin/numbering" "\./usr/share/numbering/dialingrules_default\.properties" \
    "\./usr/share/numbering/sample_numbers\.txt"

# Until the manual page's source is in the tree, lintian's complaint about it is expected.
suppress=()
if [ ! -e "$source_dir/tools/numbering/numbering.1.scd" ]; then
    suppress=(--suppress-tags no-manual-page)
fi
failed=0
for deb in "$work"/*.deb; do
    package=$(dpkg-deb --field "$deb" Package)
    if [ "$(dpkg-deb --field "$deb" Version)" != "$version" ]; then
        echo "$package: version $(dpkg-deb --field "$deb" Version), packaging/debian/changelog says $version"
        failed=1
    fi
    echo "lintian $package:"
    if ! lintian -I --pedantic --fail-on error,warning,info,pedantic "${suppress[@]}" "$deb"; then
        failed=1
    fi
done

root=$work/root
for deb in "$work"/*.deb; do
    dpkg-deb --extract "$deb" "$root"
done
unset NUMBERING_CONFIG_DIR
"$root/usr/bin/numbering" init "$work/library" >/dev/null
got=$(NUMBERING_CONFIG_DIR=$work/library "$root/usr/bin/numbering" -c FR dial "+49 (89) 123456")
if [ "$got" != 0004989123456 ]; then
    echo "installed tool after numbering init: got '$got'"
    failed=1
fi
# diff of the shipped and the initialised configuration converts the installed sample: nothing differs.
if ! "$root/usr/bin/numbering" diff "$root/usr/share/numbering" "$work/library" </dev/null >/dev/null 2>&1; then
    echo "installed tool: diff of the shipped configuration and its copy does not find them alike"
    failed=1
fi
# Under /usr the include and library directories are the system's: no -I, no -L.
flags=$(PKG_CONFIG_PATH=$root/usr/lib/$multiarch/pkgconfig pkg-config --cflags --libs numbering | xargs)
if [ "$flags" != "-lNumbering -lPocoUtil -lPocoFoundation" ]; then
    echo "pkg-config flags of the package: '$flags'"
    failed=1
fi
exit $failed
