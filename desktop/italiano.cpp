#include "desktop/italiano.h"

#include <QHash>

namespace ambra {

namespace {

const QHash<QString, QString>& tutte() {
    static const QHash<QString, QString> t = {
        // Buttons of every dialog
        {"OK", "OK"},
        {"Cancel", "Annulla"},
        {"Open", "Apri"},
        {"&Open", "&Apri"},
        {"Save", "Salva"},
        {"&Save", "&Salva"},
        {"&Choose", "&Scegli"},
        {"&Yes", "&Sì"},
        {"&No", "&No"},
        {"Close", "Chiudi"},
        {"Apply", "Applica"},
        {"Help", "Aiuto"},
        {"Discard", "Non salvare"},
        {"Reset", "Reimposta"},
        {"Restore Defaults", "Valori predefiniti"},
        // Files
        {"Look in:", "Cerca in:"},
        {"Back", "Indietro"},
        {"Go back", "Torna indietro"},
        {"Forward", "Avanti"},
        {"Go forward", "Vai avanti"},
        {"Parent Directory", "Cartella superiore"},
        {"Go to the parent directory", "Va alla cartella superiore"},
        {"Create New Folder", "Nuova cartella"},
        {"Create a New Folder", "Crea una nuova cartella"},
        {"&New Folder", "&Nuova cartella"},
        {"List View", "Elenco"},
        {"Change to list view mode", "Mostra come elenco"},
        {"Detail View", "Dettagli"},
        {"Change to detail view mode", "Mostra i dettagli"},
        {"Sidebar", "Cartelle preferite"},
        {"List of places and bookmarks", "Cartelle preferite"},
        {"Files", "File"},
        {"File &name:", "&Nome del file:"},
        {"Files of type:", "Tipo di file:"},
        {"Directory:", "Cartella:"},
        {"Save As", "Salva con nome"},
        {"Find Directory", "Scegli la cartella"},
        {"Recent Places", "Cartelle recenti"},
        {"All Files (*)", "Tutti i file (*)"},
        {"&Rename", "&Rinomina"},
        {"&Delete", "&Elimina"},
        {"Delete", "Elimina"},
        {"Show &hidden files", "Mostra i file &nascosti"},
        {"Drive", "Disco"},
        {"File", "File"},
        {"File Folder", "Cartella"},
        {"Folder", "Cartella"},
        {"Name", "Nome"},
        {"Size", "Dimensione"},
        {"Type", "Tipo"},
        {"Kind", "Tipo"},
        {"Date Modified", "Modificato il"},
        {"My Computer", "Computer"},
        {"Computer", "Computer"},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         "%1\nFile non trovato.\nVerifica di aver dato il nome giusto."},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         "%1\nCartella non trovata.\nVerifica di aver dato il nome giusto."},
        {"%1 already exists.\nDo you want to replace it?", "%1 esiste già.\nVuoi sostituirlo?"},
        // Fonts
        {"Select Font", "Scegli il carattere"},
        {"&Font", "&Carattere"},
        {"Font st&yle", "S&tile"},
        {"&Size", "&Dimensione"},
        {"Effects", "Effetti"},
        {"Stri&keout", "&Barrato"},
        {"&Underline", "&Sottolineato"},
        {"Sample", "Esempio"},
        {"Wr&iting System", "Sistema di s&crittura"},
        {"Any", "Tutti"},
        {"Normal", "Normale"},
        {"Bold", "Grassetto"},
        {"Italic", "Corsivo"},
        {"Bold Italic", "Grassetto corsivo"},
        // Colours
        {"Select Color", "Scegli il colore"},
        {"&Basic colors", "Colori di &base"},
        {"&Custom colors", "Colori &personali"},
        {"&Add to Custom Colors", "&Aggiungi ai colori personali"},
        {"&Pick Screen Color", "Prendi dallo sc&hermo"},
        {"Hu&e:", "&Tinta:"},
        {"&Sat:", "&Sat.:"},
        {"&Val:", "&Lum.:"},
        {"&Red:", "&Rosso:"},
        {"&Green:", "&Verde:"},
        {"Bl&ue:", "Bl&u:"},
        {"A&lpha channel:", "Canale al&fa:"},
        {"&HTML:", "HT&ML:"},
        // Menus of fields and scroll bars
        {"&Undo", "&Annulla"},
        {"&Redo", "&Ripeti"},
        {"Cu&t", "&Taglia"},
        {"&Copy", "&Copia"},
        {"&Paste", "&Incolla"},
        {"Select All", "Seleziona tutto"},
        {"Copy &Link Location", "Copia il &collegamento"},
        {"Scroll here", "Scorri fin qui"},
        {"Left edge", "Inizio"},
        {"Right edge", "Fine"},
        {"Top", "Inizio"},
        {"Bottom", "Fine"},
        {"Page left", "Pagina indietro"},
        {"Page right", "Pagina avanti"},
        {"Page up", "Pagina indietro"},
        {"Page down", "Pagina avanti"},
        {"Scroll left", "Indietro"},
        {"Scroll right", "Avanti"},
        {"Scroll up", "Indietro"},
        {"Scroll down", "Avanti"},
    };
    return t;
}

}  // namespace

QString ItalianoDiQt::translate(const char*, const char* testo, const char*, int) const {
    return tutte().value(QString::fromUtf8(testo));
}

}  // namespace ambra
