#!/bin/sh
# The check tells clean (0), findings (1) and what is not there (2) apart, for people and for programs.
. "$(dirname "$0")/attrezzi"
prima=$(foto disco)

corri 0 check --drive disco
tace err
dice out "Stabili verificati: 3, errori: 0, avvisi: 0"
dice out "Nessun rilievo"
corri 0 check --drive disco 2 003
dice out "Stabili verificati: 2, errori: 0, avvisi: 0"
(cd $archivio && "$ambra" check 1 > "$casa/out" 2> "$casa/err") || male "not found from below"

corri 2 check --drive disco 1 7
dice err "ambra: lo stabile 007 manca"
dice out "Una parte dell'archivio manca o non si legge"
corri 2 check --drive disco 7 --json
dice out '{"event":"summary","buildings":1,"errors":0,"warnings":0,"status":2}'
rifiuta "nulla: la cartella manca o non si legge" check --drive nulla
mkdir -p vuoto/lumdir/lumora spoglio
corri 2 check --drive vuoto
dice err "ambra: vuoto: in lumdir/lumora non c'è nessuno stabile"
corri 2 check --drive spoglio
dice err "ambra: spoglio: la cartella lumdir/lumora manca o non si legge"
[ "$(foto disco)" = "$prima" ] || male "the check has written"

printf '\350' | dd of=$archivio/lum001.srf bs=1 seek=43 conv=notrunc 2> err
corri 1 check --drive disco 1
tace err
grep -q '^lum001.srf, record 2, nome: errore, trovato ".è' out || male "not told for people"
corri 1 check --drive disco 1 --json
tace err
grep -q '"event":"finding","severity":"error","building":"001","file":"lum001.srf","record":2,"field":"nome"' out ||
    male "not told for programs"
corri 0 check --drive disco 2

# a link in the place of a file, and a folder
mv $archivio/lum003.pia altrove
ln -s "$casa/altrove" $archivio/lum003.pia
mkdir $archivio/lummmi.dxy.~~~ $archivio/lum001.lay
corri 1 check --drive disco 3
# An emulator shows what a link leads to.
[ -n "$emulatore" ] || grep -q '^lum003.pia: avviso, trovato "un collegamento"' out || male "a link is not told"
grep -q '^lum001.lay: errore, trovato "non un file"' out || male "a folder is not told"
grep -q '^lummmi.dxy.~~~: avviso, trovato "un file provvisorio rimasto"' out || male "what was left is not told"

# one cause is told once: what is no file is not told again as one that cannot be read
rm $archivio/lum002.pia
mkdir $archivio/lum002.pia
corri 2 check --drive disco 2
[ "$(grep -c '^lum002' out)" -eq 1 ] || male "one folder, one finding"
rm -r $archivio/lum002.pia

# --repair: a copy first, each step told, and nothing left to find
XDG_DATA_HOME=$casa/dati
export XDG_DATA_HOME
"$ambra" demo --today 15/03/2024 rotto > /dev/null
archivio=rotto/lumdir/lumora
rm $archivio/lum001.srf
: > $archivio/lum002.ftr.~~~
prima=$(foto rotto)
corri 0 check --repair --drive rotto
tace err
grep -q '^Riparato lum001.srf: indice rifatto, ' out || male "the index is not told"
dice out "Riparato lum002.ftr.~~~: tolto, era un file provvisorio"
dice out "Nessun rilievo"
copia=$(find dati -name '001-*-riparazione.copia')
[ -n "$copia" ] && [ -z "$(find dati -name '00[23]*')" ] || male "a copy of what is mended, and of that alone"
corri 0 restore --drive rotto "$copia"
[ ! -e $archivio/lum001.srf ] || male "the copy is not from before"
corri 0 check --repair --json --drive rotto
grep -q '"event":"repair"' out || male "not told for programs"
# without a copy nothing is touched
rm $archivio/lum001.srf
XDG_DATA_HOME=/dev/null
corri 2 check --repair --drive rotto
dice err "ambra: stabile 001 non riparato: senza una copia non si tocca nulla: non c'è una cartella per le copie"
[ ! -e $archivio/lum001.srf ] || male "repaired without a copy"
