#!/bin/sh
# A building goes into one archive and comes back byte for byte, over whatever stands there; what it replaces is kept.
. "$(dirname "$0")/attrezzi"
copia="copia d'archivio n° 1 (è).tar.gz"
sana=$(foto disco)

corri 0 backup --drive disco 1 "$copia"
tace err
quanti=$(tar tzf "$copia" | grep -vc MANIFEST.TXT)
dice out "Stabile 001: $quanti file salvati in $copia"
[ "$(foto disco)" = "$sana" ] || male "a backup has changed the archive"

# over a building that has gone on
printf altro >> $archivio/lum001.ftr
rm $archivio/lum001.srf
printf x > "$archivio/lum001.lay"
printf x > $archivio/lum001.exe
rovinata=$(sha256sum < $archivio/lum001.ftr)
corri 0 restore --drive disco "$copia"
tace err
deposito=$(basename $archivio/sostituiti-*)
dice out "Stabile 001: $quanti file ripristinati; quelli di prima sono in disco/lumdir/lumora/$deposito"
[ "$(sha256sum < "$archivio/$deposito/lum001.ftr")" = "$rovinata" ] || male "what was replaced is not kept"
[ -e "$archivio/$deposito/lum001.lay" ] || male "a file that the backup lacks was not put aside"
[ -e "$archivio/lum001.exe" ] || male "a file that is none of the archive was touched"
rm $archivio/lum001.exe
rm -r "${archivio:?}/$deposito"
[ "$(foto disco)" = "$sana" ] || male "not as saved"

# the folder of this second is taken already; then on a new drive
for fra in 0 1 2 3 4 5 6 7 8 9; do mkdir "$archivio/sostituiti-$(date -d "+$fra seconds" +%Y%m%d-%H%M%S)"; done
corri 0 restore --drive disco "$copia"
grep -q 'sostituiti-[0-9]*-[0-9]*-2$' out || male "no folder of its own"
mkdir nuovo
corri 0 restore --drive nuovo "$copia"
corri 0 check --drive nuovo
dice out "Stabili verificati: 1, errori: 0, avvisi: 0"

rifiuta "stabile 009 non salvato: lo stabile manca" backup --drive disco 9 altra.tar.gz
rifiuta "nulla: la cartella manca o non si legge" backup --drive nulla 1 altra.tar.gz
rifiuta "nulla: la cartella manca o non si legge" restore --drive nulla "$copia"
[ ! -e nulla ] || male "a refused restore makes a folder"
corri 2 backup --drive disco 1 nulla/altra.tar.gz
grep -q "^ambra: nulla/altra.tar.gz: non si può scrivere" err || male "no word why"
corri 2 backup --drive disco --force 1 nuovo
grep -q "^ambra: nuovo: non si può scrivere" err || male "no word why"

# what is no backup is not replaced, unless told so; a backup is
echo tesi > tesi.odt
rifiuta "tesi.odt c'è già e non è un salvataggio: per sostituirlo, --force" backup --drive disco 1 tesi.odt
[ "$(cat tesi.odt)" = tesi ] || male "somebody's file was replaced"
corri 0 backup --drive disco --force 1 tesi.odt
corri 0 backup --drive disco 2 tesi.odt
[ -z "$(find . -name '*~~~*' -o -name 'altra*')" ] || male "something is left of a refused backup"
