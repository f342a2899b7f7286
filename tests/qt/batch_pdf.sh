#!/bin/sh
# The command line puts each job into a PDF file whose text an independent reader finds.
# usage: batch_pdf.sh AMBRA
set -e
casa=$(mktemp -d)
trap 'rm -rf "$casa"' EXIT
"$1" demo "$casa/disco" > /dev/null
cat > "$casa/script" <<'S'
click vexoraf.command3d2(0)
click vexoraf.command3d2(1)
type lumcer.text1(0) 01/01/2000
click lumcer.command3d2
answer yes yes
click lumcer.stampante
click lumcer.certif
S
"$1" batch --drive "$casa/disco" --pdf "$casa/pdf" 1 "$casa/script" > "$casa/eventi"
lavori=$(grep -c '"event":"print"' "$casa/eventi")
file=$(ls "$casa/pdf" | wc -l)
test "$lavori" -gt 10
test "$lavori" -eq "$file"
pdftotext -layout "$casa"/pdf/lavoro-001-Lista-certificazioni.pdf - | grep -q "ACQUEDOTTO CIVICO"
pdftotext "$casa"/pdf/lavoro-002-*.pdf - > "$casa/testo"
grep -q "CERTIFICAZIONE DEI COMPENSI N. 1" "$casa/testo"
grep -q "ACQUEDOTTO CIVICO" "$casa/testo"
if grep -q '\$\$\$' "$casa/testo"; then exit 1; fi
# Each letter of the run is in the file of its own number.
ultima=$(ls "$casa"/pdf | tail -1)
pdftotext "$casa/pdf/$ultima" - | grep -q "CERTIFICAZIONE DEI COMPENSI N. $((lavori - 1))\$"
pdfinfo "$casa/pdf/$ultima" | grep -q "^Title: *Certificazione $((lavori - 1)) "
# One that cannot be written is told by its number, and the others are there.
terza=$(ls "$casa"/pdf | sed -n 3p)
rm "$casa"/pdf/*
mkdir "$casa/pdf/$terza"
stato=0
"$1" batch --drive "$casa/disco" --pdf "$casa/pdf" 1 "$casa/script" > /dev/null 2> "$casa/errori" || stato=$?
test "$stato" -eq 2
grep -q "il PDF del lavoro 3 " "$casa/errori"
test "$(grep -c "il PDF del lavoro" "$casa/errori")" -eq 1
test "$(find "$casa/pdf" -type f -size +1k | wc -l)" -eq $((lavori - 1))
# A folder that cannot be written ends the run with an error.
if "$1" batch --drive "$casa/disco" --pdf /proc/nessuna 1 "$casa/script" > /dev/null 2>&1; then exit 1; fi
