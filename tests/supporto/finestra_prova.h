// The workbench of a window test: a program on a disc in memory with its windows, driven by mouse and keys.
//
//     BancoFinestre b;
//     b.fatture({...});                        // lay out the archive
//     b.avvia();                               // the main window is shown
//     b.piattaforma.risposte = {Risposta::si};  // the next question
//     QTest::mouseClick(b.widget<QPushButton>("vexoraf", "indice"), Qt::LeftButton);
//     b.quieta();                              // what the logic changed is on the windows
#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include "desktop/aspetto.h"
#include "desktop/finestre.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/piattaforma_qt.h"
#include "qt/ricordi.h"
#include "tests/supporto/banco.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace ambra {

/// While it lives no leak is looked for: what the window library holds when an exception goes through it
/// stays unfreed. Only for the tests of the program's end, which in earnest does not come back.
struct SenzaPerdite {
#if defined(__SANITIZE_ADDRESS__)
    __lsan::ScopedDisabler spento;
#endif
};

/// The windows' platform with queued answers instead of dialogs; the event loop is the real one.
class PiattaformaFinestre : public PiattaformaQt {
  public:
    PiattaformaFinestre() : PiattaformaQt(stampante) {
        stampante.finito = [this](LavoroStampa&& l) { lavori.push_back(std::move(l)); };
        fine = [this] {
            finita = true;
            throw FineProcesso{};
        };
    }
    RecordingPrinter stampante;
    std::vector<LavoroStampa> lavori;
    Printer* altra_stampante = nullptr;  ///< in place of the one that keeps its jobs
    std::vector<PiattaformaProva::Messaggio> messaggi;
    std::deque<Risposta> risposte;  ///< an empty queue answers no, or OK where there is only OK
    std::deque<std::optional<std::string>> file;
    std::vector<std::string> documenti;
    int esito_documento = 33;
    Data oggi{15, 3, 2024};
    bool finita = false;
    bool confermata = true;  ///< the printer set-up

    Risposta message_box(const std::string& testo, const std::string& titolo, Icona icona, Bottoni bottoni,
                         Risposta prescelta) override {
        messaggi.push_back({testo, titolo, icona, bottoni, prescelta});
        if (risposte.empty()) return bottoni == Bottoni::ok ? Risposta::ok : Risposta::no;
        const Risposta r = risposte.front();
        risposte.pop_front();
        return r;
    }
    std::optional<std::string> open_folder(const std::string& titolo) override {
        return open_file(titolo, "");
    }
    std::optional<std::string> open_file(const std::string&, const std::string&) override {
        if (file.empty()) return {};
        const auto f = file.front();
        file.pop_front();
        return f;
    }
    bool printer_setup() override { return confermata; }
    Printer& printer() override { return altra_stampante ? *altra_stampante : PiattaformaQt::printer(); }
    int open_document(const std::string& percorso) override {
        documenti.push_back(percorso);
        return esito_documento;
    }
    Data today() override { return oggi; }
};

/// The configuration of a display of that size for the platform without one.
inline QByteArray schermo_finto(int larghezza, int altezza) {
    return QStringLiteral(
               "{\"screens\":[{\"name\":\"finto\",\"x\":0,\"y\":0,\"width\":%1,\"height\":%2,"
               "\"logicalDpi\":96,\"logicalBaseDpi\":96,\"dpr\":1}]}")
        .arg(larghezza)
        .arg(altezza)
        .toLatin1();
}

struct BancoFinestre : ArchivioProva {
    PiattaformaFinestre piattaforma;
    Programma prog;
    Finestre finestre;

    /// `ricorda` keeps what the windows of the workbench before have remembered.
    explicit BancoFinestre(std::string nnn = "1", bool ricorda = false)
        : prog(memoria, piattaforma, std::move(nnn)), finestre(prog) {
        static const QTemporaryDir cartella;
        ricordi_in(cartella.path());
        if (!ricorda) ricordi().clear();
        registra_tutte(prog.schermi);
    }
    /// The archive must be laid out before.
    void avvia() { apri("vexoraf"); }
    Finestra& apri(const std::string& schermo) {
        prog.schermi.apri(schermo);
        quieta();
        return finestra(schermo);
    }
    Finestra& finestra(const std::string& schermo) {
        Finestra* f = finestre.finestra(schermo);
        if (!f) qFatal("no window of %s", schermo.c_str());
        return *f;
    }
    /// A widget of a window by the name of its control.
    template <class W>
    W* widget(const std::string& schermo, const std::string& controllo) {
        auto* w = finestra(schermo).findChild<W*>(QString::fromStdString(controllo));
        if (!w) qFatal("no %s in %s", controllo.c_str(), schermo.c_str());
        return w;
    }
    /// Clicks a cell of a grid; rows count from 1 as in the logic.
    void clic_cella(const std::string& schermo, const std::string& griglia, int riga, int colonna) {
        QTableView* t = widget<VistaGriglia>(schermo, griglia)->tabella();
        const QModelIndex i = t->model()->index(riga - 1, colonna);
        t->scrollTo(i);
        quieta();
        QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, t->visualRect(i).center());
        quieta();
    }
    /// Clicks or types, and waits for the windows to follow.
    void clic(QWidget* w) {
        QTest::mouseClick(w, Qt::LeftButton);
        quieta();
    }
    static void quieta() { QTest::qWait(0), QCoreApplication::processEvents(); }
};

}  // namespace ambra
