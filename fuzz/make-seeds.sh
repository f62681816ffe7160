#!/usr/bin/env bash
# Builds the seed corpus of the fuzz targets in OUT: the example scenes, the
# scene cases (those with submitter arguments also with a "#zkargs" line),
# short slices of the real scenes in CORPUS when that folder exists, and a
# few inputs for the path target.
#
#   bash fuzz/make-seeds.sh OUT [CORPUS]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$1"
corpus="${2:-../shared/corpus}"
mkdir -p "$out/load" "$out/paths"

cp examples/*.hip "$out/load/"
for scene in tests/cases/*.hip; do
    name="$(basename "$scene" .hip)"
    cp "$scene" "$out/load/case_$name.hip"
    expect="tests/cases/$name.expect.json"
    # The arguments of a case, as one "#zkargs" line in front of its scene.
    if [ -f "$expect" ] && grep -q '"arguments"' "$expect"; then
        args="$(tr -d '\n' < "$expect" | sed -n 's/.*"arguments"[[:space:]]*:[[:space:]]*\[\([^]]*\)\].*/\1/p' \
            | tr -d '",')"
        { printf '#zkargs %s\n' "$args"; cat "$scene"; } > "$out/load/args_$name.hip"
    fi
done
printf '#zkargs -houdiniBuildVersion -houdiniCompressedIFD -customRenVer_Arnold 7.1.4.1 -customRenVer_Redshift 3.5.19 -customRenVer_VRay 6 -customRenVer_prman 25.2\n' \
    | cat - examples/mantra_ifd.hip > "$out/load/args_all_switches.hip"

# Real scenes run to megabytes of binary members; a slice keeps the global
# lines, the node members that declare types, flags and frame channels
# (".init", ".def", ".chn") and the sections the readers take (under out/,
# obj/, img/, stage/), cut into pieces of about 6 KB, at most four per scene.
if [ -d "$corpus" ]; then
    n=0
    while IFS= read -r -d '' scene; do
        n=$((n + 1))
        LC_ALL=C awk -v prefix="$out/load/corpus_${n}_" '
            function trim(s) { sub(/^[ \t\r]+/, "", s); sub(/[ \t\r]+$/, "", s); return s }
            function emit() {
                if (chunk == "" || pieces >= 4) return
                pieces++; printf "%s%s", globals, chunk > (prefix pieces ".hip"); close(prefix pieces ".hip")
                chunk = ""
            }
            {
                t = trim($0)
                if (member) {
                    section = section $0 "\n"
                    if (t == "end" || t ~ /^}$/ || length(section) > 3000) {
                        member = 0
                        if (length(section) < 3000) chunk = chunk section
                    }
                    next
                }
                if (inside) {
                    section = section $0 "\n"
                    if (t ~ /^}/) {
                        inside = 0
                        if (length(section) < 3000) chunk = chunk section
                        if (length(chunk) > 6000) emit()
                    }
                    next
                }
                if (t ~ /^(frange |set -g |take name )/ || t ~ /_HIP_SAVEVERSION/) {
                    if (length(globals) < 1000) globals = globals $0 "\n"
                    next
                }
                if (t ~ /\.init.type = /) { chunk = chunk $0 "\n"; next }
                if (t ~ /\.(def|chn).(comment|\{)/) { member = 1; section = $0 "\n"; next }
                if (t ~ /\.parm.?.?\{$/ && t ~ /(out|obj|img|stage)\//) { inside = 1; section = $0 "\n" }
            }
            END { emit() }' "$scene"
    done < <(find "$corpus" -type f \( -name '*.hip' -o -name '*.hipnc' -o -name '*.hiplc' \) -print0 | sort -z)
fi

# Path target: parameter line, scene path, then NAME<TAB>VALUE variables.
printf 'vm_picture\t[ 0\tlocks=0 ]\t(\t"$HIP/render/$HIPNAME.$F4.exr"\t)\n/proj/shot/scene.hip\nJOB\t/proj\n' \
    > "$out/paths/mantra"
printf '+RS_outputFileNamePrefix\t[ 0\tlocks=0 ]\t(\t"${SHOT}/$ACTIVETAKE/img.${F4}.$AOV.exr"\t)\n/p/a.hiplc\nSHOT\tsh010.hip\nSHOTDIR\t/s\n' \
    > "$out/paths/redshift"
printf 'picture\t[ 0\tlocks=0 ]\t(\t[ picture\t"$JOB/$OS.$RFSTART-$RFEND.$FF.mov" ]\t)\nscene.hip\n' \
    > "$out/paths/selfref"
