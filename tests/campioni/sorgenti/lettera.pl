# A letter through the RTF::Writer module.
use strict;
use warnings;
use utf8;
use RTF::Writer;

my $rtf = RTF::Writer->new_to_file($ARGV[0]);
$rtf->prolog(
    fonts  => ['Times New Roman', 'Courier New', 'Arial'],
    colors => [undef, [255, 0, 0], [0, 0, 160]],
);
$rtf->print(\'\paperw11906\paperh16838\margl1417\margr1134\margt1134\margb1134 ');
$rtf->number_pages('Pagina ');
$rtf->paragraph(\'\f2\fs32\b\cf2\sa200', 'Certificazione dei compensi');
$rtf->paragraph(\'\fs22\li5103', 'Spett.le', "\n", [\'\b', '$$$251$$$'], "\n", '$$$253$$$', "\n",
    '$$$254$$$ $$$255$$$');
$rtf->paragraph(\'\fs22\qj\sb240\sa120',
    "Si certifica che nel periodo sono stati corrisposti a \$\$\$251\$\$\$ i compensi seguenti, per la "
        . "città di \$\$\$255\$\$\$: perché, più, può, {graffe} e \\ rovesciata, con ",
    [\'\b', 'una parola in grassetto'], ', ', [\'\i\cf1', 'una in corsivo rosso'], ' e ',
    [\'\f1\fs20', 'testo fisso'], '.');
my $tabella = RTF::Writer::TableRowDecl->new(
    widths => [4000, 3000, 2000], borders => 'all', align => 'w c e');
$rtf->row($tabella, 'Totale documenti', '$$$261$$$', 'euro');
$rtf->row($tabella, 'Imponibile', '$$$262$$$', 'euro');
$rtf->row($tabella, [\'\b', 'Ritenuta'], '$$$264$$$', 'una cella che va a capo');
$rtf->paragraph(\'\qr\fs22\sb400', "L'amministratore di \$\$\$265\$\$\$");
$rtf->close;
