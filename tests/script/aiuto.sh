#!/bin/sh
# Help of a script only speaks, and a word that is not understood ends it: nothing is installed, built or run.
# usage: aiuto.sh FOLDER-OF-THE-SCRIPTS
set -u
script=$(realpath "$1")
casa=$(mktemp -d)
trap 'rm -rf "$casa"' EXIT
for comando in apt-get sudo dpkg-query cmake ctest ninja git clang-format; do
    printf '#!/bin/sh\necho "%s $*" >>"%s/fatto"\n' "$comando" "$casa" > "$casa/$comando"
    chmod +x "$casa/$comando"
done
PATH=$casa:$PATH

male() {
    echo "$*"
    exit 1
}

visti=0
for s in "$script"/*; do
    [ -f "$s" ] && [ -x "$s" ] || continue
    visti=$((visti + 1))
    for parola in --help -h; do
        "$s" "$parola" > "$casa/out" 2>&1 || male "$s $parola: status $?"
        grep -q "^usage: scripts/$(basename "$s")" "$casa/out" || male "$s $parola: no usage"
        [ ! -e "$casa/fatto" ] || male "$s $parola has done: $(cat "$casa/fatto")"
    done
done
[ "$visti" -gt 8 ] || male "only $visti scripts in $script"

for riga in "run abc" "run 4" "run 1 --nuova" "test abc" "setup abc"; do
    "$script"/$riga > "$casa/out" 2>&1
    [ $? -eq 2 ] || male "$riga: not refused"
    grep -q "not understood: " "$casa/out" || male "$riga: refused without a word"
    [ ! -e "$casa/fatto" ] || male "$riga has done: $(cat "$casa/fatto")"
done
