#!/usr/bin/env bash
# Builds the Debian package from the build tree, unpacks it into a scratch
# root as dpkg would lay it out, and runs the installed hipjobs on an example:
# the package must hold everything the tool needs besides Qt's core library.
set -euo pipefail
build=$1
source=$2
package=zksceneparserhoudini
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() { echo "package test: $*" >&2; exit 1; }

if ! (cd "$build" && cpack -G DEB -B "$scratch/out") >"$scratch/cpack.log" 2>&1; then
    cat "$scratch/cpack.log"
    fail "cpack failed"
fi
deb=$(ls "$scratch"/out/*.deb)
depends=$(dpkg-deb -f "$deb" Depends)
[[ $depends == libqt6core6* && $depends != *,* ]] || fail "Depends is \"$depends\""

dpkg -x "$deb" "$scratch/root"
usr=$scratch/root/usr
for f in bin/hipjobs lib/$package/plugins/libzkSceneParserHoudini.so lib/$package/libzkShared.so \
    share/doc/$package/README.md share/doc/$package/hipjobs.schema.json share/man/man1/hipjobs.1.gz; do
    [ -f "$usr/$f" ] || fail "missing $f"
done
zcat "$usr/share/man/man1/hipjobs.1.gz" >"$scratch/hipjobs.1"
grep -qF -- '\-\-summary' "$scratch/hipjobs.1" || fail "man page lacks --summary"

# The installed tool finds the installed plugin by itself, and nothing of the
# build tree: its run paths are relative.
"$usr/bin/hipjobs" --version | grep -qF "($usr/lib/$package/plugins/libzkSceneParserHoudini.so)" \
    || fail "hipjobs --version does not name the installed plugin"
out=$("$usr/bin/hipjobs" "$source/examples/mantra_ifd.hip")
grep -qF 'result 1 (success), 3 job(s)' <<<"$out" || fail "unexpected output: $out"
echo "package test: $(basename "$deb") installs and runs"
