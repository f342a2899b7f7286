#include "desktop/parts/suggerimenti.h"

#include <QHash>

namespace ambra {

QString suggerimento_di(const QString& caption) {
    static const QHash<QString, QString> tutti = {
        {"azzera", "Annulla il saldo registrato e paga di nuovo la fattura"},
        {"Riordina", "Riordina l'elenco su questa colonna"},
        {"Rit.Acconto", "Versamento, elenchi e certificazioni delle ritenute d'acconto"},
        {"Tabelle", "Tabelle iva e pagamenti, modulo ministeriale, etichette"},
        {"Archivi", "Riordino, azzeramento e indici degli archivi"},
        {"Aggiorna lista", "Rilegge l'archivio e ricostruisce l'elenco (F5)"},
        {"Tab.pagamenti", "Condizioni di pagamento"},
        {"Mod.ministerial", "Coordinate di stampa del modulo ministeriale"},
        {"Forma etichetta", "Disegno delle etichette"},
        {"Riordino", "Elimina le fatture cancellate e mette l'archivio in ordine di data"},
        {"Azzeramento", "Elimina i documenti fino a una data"},
        {"Indici", "Numero dei fornitori e delle fatture in archivio"},
        {"Versam.ritenute", "Registra il versamento delle ritenute d'acconto"},
        {"Dett.ritenute", "Dettaglio delle ritenute d'acconto per fornitore"},
        {"Riep.analitico", "Riepilogo degli acquisti, documento per documento"},
        {"Riep.sintetico", "Riepilogo degli acquisti, un rigo per fornitore"},
        {"Imposta", "Imposta la stampante"},
    };
    return tutti.value(caption);
}

}  // namespace ambra
