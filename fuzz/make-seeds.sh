#!/usr/bin/env bash
# Builds the seed corpus of the fuzz targets in OUT: the example scenes, the
# scene cases (those with submitter arguments also with a "#zkargs" line),
# short slices of the real scenes in CORPUS when that folder exists, a flood
# of each list the scan fills, and a few inputs for the path target.
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

# One flood per list the scan fills: many items, then the drivers that look
# up the 16th and 17th item, on either side of the fuzz build's small list
# limits (as its job record cap is small), so both sides of each cut are
# reached from the first input on.
parm() { printf '%s\t[ 0\tlocks=0 ]\t(\t%s\t)\n' "$1" "$2"; }
driver() { # NAME [PARAMETER VALUE]
    printf 'out/%s.parm {\n' "$1"
    if [ $# -gt 1 ]; then parm "$2" "$3"; fi
    parm vm_picture "\"/r/$1.\$F4.exr\""
    printf '}\n'
}
flood() { # NAME COUNT AWK-FORMAT (the item number for every %d); the drivers on stdin
    { LC_ALL=C awk -v n="$2" -v f="$3" 'BEGIN { for (i = 0; i < n; i++) printf f, i, i, i }'
        cat; } > "$out/load/flood_$1.hip"
}
{ driver m1 take T15; driver m2 take t16; } | flood takes 100 'take name t%d kids 0\n'
{ driver m1 camera /obj/cam15; driver m2 camera /obj/cam16; } \
    | flood cameras 100 'obj/cam%d.parm {\nres\t[ 0\tlocks=0 ]\t(\t64\t32\t)\n}\n'
for i in 15 16; do
    printf 'out/u%s.parm {\n' "$i"
    parm outputimage '"/r/own.$F4.exr"'
    parm loppath "/stage/hdprman$i"
    printf '}\n'
done | flood lops 100 'stage/hdprman%d.parm {\npicture\t[ 0\tlocks=0 ]\t(\t"/r/lop%d.$F4.exr"\t)\n}\nstage/rendersettings%d.parm {\n}\n'
{ driver m15; driver m16; } | flood wedges 100 'out/wedge%d.parm {\ndriver\t[ 0\tlocks=0 ]\t(\t/out/m%d\t)\nsteps1\t[ 0\tlocks=0 ]\t(\t2\t)\nwedgemethod\t[ 0\tlocks=0 ]\t(\tchannel\t)\n}\n'
{ printf 'out/m1.parm {\n'; parm vm_picture '"/r/$A15Z/$A16Z/$A299Z.$F4.exr"'; printf '}\n'; } \
    | flood variables 300 "set -g A%dZ = 'v%d'\n"

# Path target: parameter line, scene path, then NAME<TAB>VALUE variables.
printf 'vm_picture\t[ 0\tlocks=0 ]\t(\t"$HIP/render/$HIPNAME.$F4.exr"\t)\n/proj/shot/scene.hip\nJOB\t/proj\n' \
    > "$out/paths/mantra"
printf '+RS_outputFileNamePrefix\t[ 0\tlocks=0 ]\t(\t"${SHOT}/$ACTIVETAKE/img.${F4}.$AOV.exr"\t)\n/p/a.hiplc\nSHOT\tsh010.hip\nSHOTDIR\t/s\n' \
    > "$out/paths/redshift"
printf 'picture\t[ 0\tlocks=0 ]\t(\t[ picture\t"$JOB/$OS.$RFSTART-$RFEND.$FF.mov" ]\t)\nscene.hip\n' \
    > "$out/paths/selfref"
