#!/bin/sh
# Electronic invoices listed by building: for people, for programs, and what cannot be read. Nothing is written.
. "$(dirname "$0")/attrezzi"

# xml NUMBER FISCAL_CODE: an invoice for the building of that code.
xml() {
    cat << FINE
<?xml version="1.0" encoding="ISO-8859-1"?>
<p:FatturaElettronica><FatturaElettronicaHeader><CedentePrestatore><DatiAnagrafici><IdFiscaleIVA><IdPaese>IT</IdPaese>
<IdCodice>01234567897</IdCodice></IdFiscaleIVA><Anagrafica><Denominazione>IDRAULICA BRUNI</Denominazione></Anagrafica>
<RegimeFiscale>RF01</RegimeFiscale></DatiAnagrafici></CedentePrestatore><CessionarioCommittente><DatiAnagrafici>
<CodiceFiscale>$2</CodiceFiscale></DatiAnagrafici></CessionarioCommittente></FatturaElettronicaHeader>
<FatturaElettronicaBody><DatiGenerali><DatiGeneraliDocumento><TipoDocumento>TD01</TipoDocumento><Divisa>EUR</Divisa>
<Data>2024-03-01</Data><Numero>$1</Numero><DatiRitenuta><TipoRitenuta>RT02</TipoRitenuta><ImportoRitenuta>40.00
</ImportoRitenuta><AliquotaRitenuta>4.00</AliquotaRitenuta></DatiRitenuta></DatiGeneraliDocumento></DatiGenerali>
<DatiBeniServizi><DettaglioLinee><PrezzoTotale>1000.00</PrezzoTotale><AliquotaIVA>22.00</AliquotaIVA><Ritenuta>SI
</Ritenuta></DettaglioLinee><DatiRiepilogo><AliquotaIVA>22.00</AliquotaIVA><ImponibileImporto>1000.00
</ImponibileImporto><Imposta>220.00</Imposta></DatiRiepilogo></DatiBeniServizi></FatturaElettronicaBody>
</p:FatturaElettronica>
FINE
}

mkdir -p posta/sotto
xml A 99999999999 > posta/a.xml
xml B 97045610151 > posta/b.xml
xml C 97012340158 > posta/c.xml
xml D 97012340158 > posta/sotto/d.xml
mkfifo posta/tubo
prima=$(foto .)

corri 0 fatture --drive disco posta
tace err
cat > atteso << 'FINE'
001  01/03/2024  Fattura  C  IDRAULICA BRUNI  1.220,00  ritenuta 40,00  netto 1.180,00  c.xml
002  01/03/2024  Fattura  B  IDRAULICA BRUNI  1.220,00  ritenuta 40,00  netto 1.180,00  b.xml
---  01/03/2024  Fattura  A  IDRAULICA BRUNI  1.220,00  ritenuta 40,00  netto 1.180,00  a.xml
Documenti: 3, non leggibili: 0, altre voci: 0
FINE
cmp -s atteso out || male "not sorted by building"

corri 0 fatture --json --drive disco posta/a.xml posta/sotto
tace err
[ "$(wc -l < out)" -eq 2 ] || male "not one object a document"
sed -n 1p out | grep -q '"file":"d.xml","fornitore":{"nome":"IDRAULICA BRUNI","partita_iva":"01234567897"' ||
    male "the document of the building is not the first"
dice out '{"file":"a.xml","fornitore":{"nome":"IDRAULICA BRUNI","partita_iva":"01234567897","estero":"","codice_fiscale":"","regime":"RF01","persona_fisica":false,"indirizzo":"","cap":"","citta":"","provincia":""},"cliente":"99999999999","numero":"A","numero_registrato":"A","data":"2024-03-01","tipo_documento":"TD01","registra_come":"fattura","iva":{"22":{"imponibile":"1000.00","imposta":"220.00"}},"esenti":{},"arrotondamento":"0.00","totale":"1220.00","totale_dichiarato":null,"ritenuta":"40.00","base_ritenuta":"1000.00","contributi":"0.00","netto":"1180.00","rate":[],"rate_nel_file":[],"rate_da":"assenti","allegati":[],"pdf":[],"avvisi":[],"voce":"","corpo":"1/1"}'

printf 'OK' > breve.p7m
corri 1 fatture --drive disco --json breve.p7m posta/b.xml nulla.xml
tace err
dice out '{"file":"breve.p7m","rifiutata":"non riconosciuto"}'
dice out '{"file":"nulla.xml","rifiutata":"il file manca o non si legge"}'
grep -q '"numero":"B"' out || male "a refused file stops the others"
corri 1 fatture --drive disco breve.p7m
dice out "breve.p7m: non leggibile: non riconosciuto"
# An archive with an invoice that is cut, under a name of letters with accents.
printf '%b' '\0120\0113\0003\0004\0024\0000\0000\0010\0000\0000\0000\0000\0041\0000\0160\0373\0072\0132\0024\0000\0000\0000\0024\0000' \
    '\0000\0000\0011\0000\0000\0000per\0303\0262.xml<FatturaElettronica>PK\0001\0002\0024\0003\0024\0000\0000\0010\0000' \
    '\0000\0000\0000\0041\0000\0160\0373\0072\0132\0024\0000\0000\0000\0024\0000\0000\0000\0011\0000\0000\0000\0000\0000\0000\0000' \
    '\0000\0000\0000\0000\0200\0001\0000\0000\0000\0000per\0303\0262.xmlPK\0005\0006\0000\0000\0000\0000\0001\0000\0001\0000\0067' \
    '\0000\0000\0000\0073\0000\0000\0000\0000\0000' > tutte.zip
corri 1 fatture --drive disco --json tutte.zip
dice out '{"file":"tutte.zip","rifiutata":"però.xml: XML non leggibile"}'
rm tutte.zip
corri 1 fatture --drive disco posta/tubo
corri 0 fatture posta
rm breve.p7m
[ "$(foto . | grep -v ' ./\(out\|err\|atteso\)$')" = "$(echo "$prima" | grep -v ' ./\(out\|err\|atteso\)$')" ] ||
    male "the listing has written"

rifiuta "nullo: la cartella manca o non si legge" fatture --drive nullo posta
