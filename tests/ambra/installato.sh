#!/bin/sh
# The program as installed: each command finds the parts that it loads when it needs them, and says which one it
# misses. What needs none of them does without.
# usage: installato.sh FOLDER-OF-THE-BUILD CON-PDF|SENZA-PDF
set -u
casa=$(mktemp -d)
trap 'rm -rf "$casa"' EXIT
corsa=$casa/prefisso
# The command line alone: what else is installed may not be built.
cmake --install "$1/ambra" --prefix "$corsa" > "$casa/out" 2>&1 || { cat "$casa/out"; exit 1; }
ambra=$corsa/bin/ambra
cd "$casa" || exit 70

male() {
    echo "$*"
    cat out err
    exit 1
}
# corri STATUS ARGS...: runs the installed program.
corri() {
    voluto=$1
    shift
    stato=0
    "$ambra" "$@" > out 2> err < /dev/null || stato=$?
    [ "$stato" -eq "$voluto" ] || male "ambra $*: status $stato, expected $voluto"
}

ldd "$ambra" > out 2> err
! grep -E 'Qt|archive|crypto|deflate|pugixml' out || male "a library of a part is loaded at every start"
corri 0 demo --today 15/03/2024 disco
cat > script << 'S'
click vexoraf.command3d2(0)
click vexoraf.command3d2(1)
type lumcer.text1(0) 01/01/2000
click lumcer.command3d2
answer yes yes
click lumcer.stampante
S
printf x > nessuna.xml
corri 0 backup --drive disco 1 sano.tar.gz
corri 1 fatture --drive disco nessuna.xml
grep -q "nessuna.xml: non leggibile: non riconosciuto" out || male "the reader of invoices was not there"
if [ "$2" = CON-PDF ]; then
    corri 0 batch --drive disco --pdf pdf 1 script
    [ -s pdf/lavoro-001-Lista-certificazioni.pdf ] || male "no PDF"
fi

parti=$(dirname "$(find "$corsa" -name ambra_archivi.so)")
rm "$parti"/*.so
corri 0 batch --drive disco 1 script
grep -q '"event":"print"' out || male "printing without PDF needs a part"
corri 2 fatture --drive disco nessuna.xml
grep -q "^ambra: una parte del programma non si carica: .*ambra_archivi.so" err || male "not told what is missing"
corri 2 backup --drive disco 1 nuovo.tar.gz
grep -q "^ambra: nuovo.tar.gz: una parte del programma non si carica: .*ambra_archivi.so" err || male "not told what is missing"
[ ! -e nuovo.tar.gz ] || male "a backup without its part"
corri 2 restore --drive disco sano.tar.gz
grep -q "una parte del programma non si carica: .*Nulla è cambiato" err || male "not told what is missing"
printf '%s\n' 'open mrvxml' 'file nessuna.xml' 'answer ok' 'click mrvxml.apri' 'show mrvxml' > importa
"$ambra" batch --drive disco 1 importa > out 2> err < /dev/null
grep -q 'una parte del programma non si carica' out || male "the screen does not tell why it reads no invoice"
if [ "$2" = CON-PDF ]; then
    corri 2 batch --drive disco --pdf altri 1 script
    grep -q "^ambra: manca una parte del programma: .*ambra_pdf.so" err || male "not told what is missing"
    [ ! -s out ] || male "the script has begun"
fi
