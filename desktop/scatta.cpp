// scatta: takes a picture of a window. Opens a building's archive as the desktop program does, runs a few
// actions on the logic, and writes the top window as PNG.
//
//     scatta [--drive DIR] [--dark] [--size WxH | --own-size] [--window S] NNN [SCRIPT] OUT.png
//
// The script is that of `ambra batch` as far as a window needs it: click, type, leave, enter, select,
// scroll, pick, close, answer, and `open S`, `drop PATH`, `focus S.C`, `wait MS`, `shot FILE` besides. While
// a screen waits for another, the script goes on.
#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstdlib>
#include <deque>
#include <functional>
#include <iostream>

#include "core/disco_attento.h"
#include "desktop/aspetto.h"
#include "desktop/finestre.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/piattaforma_qt.h"
#include "invoices/mrvxml.h"
#include "parti/parti.h"
#include "print/registratore.h"
#include "qt/ricordi.h"
#include "qt/tutte.h"

namespace ambra {

namespace {

void aspetta(int ms) {
    QElapsedTimer t;
    t.start();
    do QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    while (t.elapsed() < ms);
}

// Message boxes are answered from the script, "no" when it is silent, and told on standard output.
class PiattaformaScatto : public PiattaformaQt {
  public:
    using PiattaformaQt::PiattaformaQt;
    std::deque<Risposta> risposte;
    /// What goes on while a screen waits for another: the next line of the script.
    std::function<void()> in_attesa;

    void wait_event() override { in_attesa(); }

    Risposta message_box(const std::string& testo, const std::string& titolo, Icona, Bottoni bottoni,
                         Risposta) override {
        std::cout << "message: " << a_utf8(titolo) << ": " << a_utf8(testo) << std::endl;
        if (bottoni == Bottoni::ok) return Risposta::ok;
        if (risposte.empty()) return Risposta::no;
        const Risposta r = risposte.front();
        risposte.pop_front();
        return r;
    }
    bool printer_setup() override { return true; }
};

class Fotografo {
  public:
    Fotografo(Programma& p, PiattaformaScatto& q, Finestre& f) : prog_(p), piattaforma_(q), finestre_(f) {}
    QSize misura;
    bool sua_misura = false;

    /// Runs the next line of the script; false at its end.
    bool prossima(QTextStream& script) {
        while (!script.atEnd()) {
            const QString r = script.readLine().trimmed();
            if (r.isEmpty() || r.startsWith('#')) continue;
            if (!riga(r)) std::cerr << "scatta: cannot " << qPrintable(r) << std::endl;
            return true;
        }
        return false;
    }

    bool riga(const QString& r) {
        const QString verbo = r.section(' ', 0, 0);
        const QString resto = r.section(' ', 1);
        if (verbo == "wait") return aspetta(resto.toInt()), true;
        if (verbo == "shot") return scatta(resto, {});
        if (verbo == "open") return prog_.schermi.apri(da_qs(resto)), aspetta(50), true;
        if (verbo == "answer") {
            for (const QString& p : resto.split(' '))
                piattaforma_.risposte.push_back(p == "yes"  ? Risposta::si
                                                : p == "ok" ? Risposta::ok
                                                : p == "no" ? Risposta::no
                                                            : Risposta::annulla);
            return true;
        }
        if (verbo == "drop")
            return prog_.schermi.carica<Mrvxml>("mrvxml").aggiungi_percorsi({resto.toStdString()}), true;
        if (verbo == "close") {
            Schermo* s = prog_.schermi.caricato(da_qs(resto));
            if (s) prog_.schermi.chiudi_dal_bordo(*s);
            return s != nullptr;
        }
        return azione(verbo, resto.section(' ', 0, 0), resto.section(' ', 1));
    }

    bool scatta(const QString& file, const QString& quale) {
        aspetta(150);
        QWidget* f = quale.isEmpty() ? finestre_.in_cima() : finestre_.finestra(da_qs(quale));
        if (QWidget* sopra = QApplication::activePopupWidget()) f = sopra;
        if (QWidget* sopra = QApplication::activeModalWidget()) f = sopra;
        if (!f) return false;
        if (qobject_cast<Finestra*>(f) && !sua_misura)
            f->resize(misura.isValid() ? misura : f->sizeHint().boundedTo(QSize(1366, 720)));
        aspetta(150);
        std::cout << qPrintable(f->objectName()) << ' ' << f->width() << 'x' << f->height() << std::endl;
        return f->grab().save(file);
    }

  private:
    bool azione(const QString& verbo, const QString& dove, const QString& resto) {
        Schermo* s = prog_.schermi.caricato(da_qs(dove.section('.', 0, 0)));
        Controllo* c = s ? s->trova(da_qs(dove.section('.', 1))) : nullptr;
        if (!c) return false;
        const Registro::Turno turno(prog_.schermi);
        prog_.schermi.davanti(*s);
        if (c->genere() != Genere::label && s->fuoco() != c) s->fuoco(*c);
        const int n = resto.section(' ', 0, 0).toInt();
        if (verbo == "click") {
            clicca(c);
        } else if (auto* t = dynamic_cast<CampoTesto*>(c); t && verbo == "type") {
            t->digita(da_qs(resto));
        } else if (auto* l = dynamic_cast<Lista*>(c); l && verbo == "select") {
            l->scegli(n);
        } else if (auto* b = dynamic_cast<Scorrimento*>(c); b && verbo == "scroll") {
            b->scorri(n);
        } else if (auto* g = dynamic_cast<Griglia*>(c); g && verbo == "pick") {
            g->scegli(n, resto.section(' ', 1, 1).toInt());
        } else if (verbo == "enter") {
            c->premi_invio();
        } else if (verbo == "leave") {
            c->lascia();
        } else if (verbo != "focus") {
            return false;
        }
        aspetta(50);
        return true;
    }

    static void clicca(Controllo* c) {
        if (auto* casella = dynamic_cast<Casella*>(c)) {
            casella->clicca();
        } else if (auto* opzione = dynamic_cast<Opzione*>(c)) {
            opzione->clicca();
        } else {
            c->premi();
        }
    }

    Programma& prog_;
    PiattaformaScatto& piattaforma_;
    Finestre& finestre_;
};

QPalette scura() {
    QPalette p;
    p.setColor(QPalette::Window, QColor(0x2b, 0x2b, 0x2b));
    p.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
    p.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    p.setColor(QPalette::AlternateBase, QColor(0x27, 0x27, 0x27));
    p.setColor(QPalette::ToolTipBase, QColor(0x2b, 0x2b, 0x2b));
    p.setColor(QPalette::ToolTipText, QColor(0xee, 0xee, 0xee));
    p.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
    p.setColor(QPalette::Button, QColor(0x38, 0x38, 0x38));
    p.setColor(QPalette::ButtonText, QColor(0xee, 0xee, 0xee));
    p.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xff));
    p.setColor(QPalette::Highlight, QColor(0x2a, 0x5d, 0x9c));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::PlaceholderText, QColor(0x99, 0x99, 0x99));
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, ruolo, QColor(0x80, 0x80, 0x80));
    return p;
}

int fotografa(QApplication& app) {
    QCommandLineParser o;
    o.addOption({"drive", "Folder that stands for the current drive", "DIR"});
    o.addOption({"dark", "Dark palette"});
    o.addOption({"size", "Size of the window", "WxH"});
    o.addOption({"own-size", "The size that the window takes by itself on this display"});
    o.addOption({"window", "Screen to take instead of the top one", "S"});
    o.addHelpOption();
    o.process(app);
    const QStringList a = o.positionalArguments();
    if (a.size() < 2) o.showHelp(1);
    if (o.isSet("dark")) QApplication::setPalette(scura());

    const auto vero = disco_vero(o.isSet("drive") ? o.value("drive").toStdString() : radice_corrente());
    DiscoAttento disco(*vero);
    RecordingPrinter stampante;
    PiattaformaScatto piattaforma(stampante, &disco);
    Programma programma(disco, piattaforma, da_qs(a[0]));
    const auto lettore = lettore_a_richiesta();
    programma.lettore = lettore.get();
    registra_tutte(programma.schermi);
    Finestre finestre(programma);
    programma.schermi.apri("vexoraf");
    Fotografo f(programma, piattaforma, finestre);
    if (o.isSet("size"))
        f.misura = QSize(o.value("size").section('x', 0, 0).toInt(), o.value("size").section('x', 1).toInt());
    aspetta(100);
    f.sua_misura = o.isSet("own-size");
    const auto finale = [&] { return f.scatta(a.last(), o.value("window")) ? 0 : 1; };
    if (a.size() > 2) {
        QFile script(a[1]);
        if (!script.open(QIODevice::ReadOnly)) return 2;
        QTextStream righe(&script);
        // A script that ends inside a wait ends the process, as in the batch.
        piattaforma.in_attesa = [&] {
            if (!f.prossima(righe)) std::exit(finale());
        };
        while (f.prossima(righe)) {
        }
    }
    return finale();
}

}  // namespace

}  // namespace ambra

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ambra::prepara_aspetto(app);
    const QTemporaryDir nessun_ricordo;
    ambra::ricordi_in(nessun_ricordo.path());
    return ambra::fotografa(app);
}
