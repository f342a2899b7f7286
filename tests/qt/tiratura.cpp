// Letters of a run: a PDF each, with the pages, words, titles, names and faults of letters printed one by
// one.
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <random>

#include "core/testo.h"
#include "ledger/lumcer.h"
#include "print/lavoro.h"
#include "print/rtf_lettore.h"
#include "qt/replica.h"
#include "qt/stampante_qt.h"
#include "qt/tiratura.h"
#include "records/prospetto.h"
#include "tests/qt/pdf_letto.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

constexpr int kLettere = 150;  // more than two blocks

// Letters of one page and of more, upright and across, with tables, other faces and characters of their own.
std::string lettera(int n) {
    std::string t =
        R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fswiss Arial;}{\f1\froman Times New Roman;}}\f0\fs20 )";
    if (n % 10 == 3) t += R"(\paperw16838\paperh11906 )";
    if (n % 7 == 0) t += R"({\header Intestazione\par}{\footer pagina \chpgn\par})";
    t += R"(Spett.le \b DITTA )" + std::to_string(n) + R"(\b0\par Citt\'e0 \'80 ()" + std::to_string(n) +
         R"( 0 R)\par )";
    if (n % 5 == 0)
        t +=
            R"(\trowd\clbrdrt\brdrs\clbrdrb\brdrs\cellx3000\cellx6000\intbl Totale\cell\pard\intbl\qr 1.234,50\cell\row\pard )";
    if (n % 9 == 0) t += R"(\f1 Con le grazie\f0\par )";
    for (int i = 0; n % 25 == 24 && i < 120; ++i) t += "Riga " + std::to_string(i) + R"(\par )";
    return t + "}";
}

struct Detto {
    std::string titolo;
    QString file;
    bool riuscito;
    bool operator==(const Detto&) const = default;
};

// Prints the letters into a folder; what was told of each.
std::vector<Detto> stampa(StampanteQt& s, const QString& cartella, bool tornata,
                          std::vector<std::string>* passi = nullptr) {
    std::vector<Detto> detti;
    s.scelta.cartella_pdf = cartella;
    s.stampato = [&](const std::string& t, const QString& f, bool bene) {
        detti.push_back({t, QFileInfo(f).fileName(), bene});
    };
    s.avanza = [&](const std::string& t, int n) {
        if (passi) passi->push_back(t + '/' + std::to_string(n));
    };
    std::optional<Tornata> tutte;
    if (tornata) tutte.emplace(s);
    for (int n = 1; n <= kLettere; ++n) {
        const Lavoro lavoro(s);
        try {
            // Two of one title; a title with signs of its own.
            s.document_title =
                n == 2 ? "Lettera 1" : "Lettera " + std::to_string(n) + (n == 8 ? " \xE0\x80 (\\)" : "");
            s.rich_text(rtf::leggi(lettera(n)));
            if (n == 12) s.print("in calce");
        } catch (const PrinterFault&) {
        }
    }
    tutte.reset();
    s.stampato = nullptr;
    s.avanza = nullptr;
    return detti;
}

QStringList percorsi(const QString& cartella, const std::vector<Detto>& detti) {
    QStringList r;
    for (const Detto& d : detti) r << cartella + u'/' + d.file;
    return r;
}

QByteArray contenuto(const QString& percorso) {
    QFile f(percorso);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// All pages of the files one after the other; what the independent reader minds about any of them.
QString unisci_tutti(const QStringList& file, const QString& in) {
    QProcess p;
    p.start(QStringLiteral("pdfunite"), file + QStringList{in});
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardError()) + (p.exitCode() == 0 ? "" : "pdfunite failed");
}

struct PiattaformaPdf : PiattaformaProva {
    StampanteQt pdf;
    Printer& printer() override { return pdf; }
};

}  // namespace

class ProvaTiratura : public QObject {
    Q_OBJECT

    QTemporaryDir casa_;
    QString in(const char* nome) const { return casa_.filePath(QString::fromLatin1(nome)); }
    std::vector<Detto> sole_, insieme_;

  private slots:
    void initTestCase() {
        StampanteQt s;
        std::vector<std::string> passi_sole, passi_insieme;
        sole_ = stampa(s, in("sole"), false, &passi_sole);
        insieme_ = stampa(s, in("insieme"), true, &passi_insieme);
        QCOMPARE(passi_insieme, passi_sole);
        QCOMPARE(sole_.size(), std::size_t(kLettere));
    }

    void stessi_nomi_e_stessi_esiti() {
        QVERIFY(insieme_ == sole_);
        QCOMPARE(QDir(in("insieme")).entryList(QDir::Files), QDir(in("sole")).entryList(QDir::Files));
        QCOMPARE(sole_[1].file, QString("Lettera 1 (2).pdf"));
    }

    void stesse_pagine() {
        QCOMPARE(unisci_tutti(percorsi(in("sole"), sole_), in("sole.pdf")), QString());
        QCOMPARE(unisci_tutti(percorsi(in("insieme"), insieme_), in("insieme.pdf")), QString());
        const auto attese = leggi_pdf(in("sole.pdf")), lette = leggi_pdf(in("insieme.pdf"));
        QCOMPARE(lette.size(), attese.size());
        QVERIFY(lette.size() > std::size_t(kLettere) + 5);
        for (std::size_t i = 0; i < lette.size(); ++i) {
            QCOMPARE(lette[i].larghezza, attese[i].larghezza);
            QCOMPARE(lette[i].altezza, attese[i].altezza);
            QCOMPARE(lette[i].parole.size(), attese[i].parole.size());
            for (std::size_t k = 0; k < lette[i].parole.size(); ++k) {
                const Parola &a = attese[i].parole[k], &l = lette[i].parole[k];
                QCOMPARE(l.testo, a.testo);
                QVERIFY(l.x1 == a.x1 && l.y1 == a.y1 && l.x2 == a.x2 && l.y2 == a.y2);
            }
        }
    }

    void stesse_immagini() {
        for (const char* quale : {"sole", "insieme"})
            esci("pdftoppm", {"-r", "40", casa_.path() + u'/' + quale + ".pdf", casa_.path() + u'/' + quale});
        const QStringList sole = QDir(casa_.path()).entryList({"sole-*.ppm"});
        QVERIFY(sole.size() > kLettere + 5);
        for (const QString& f : sole) {
            QString altra = f;
            const QByteArray una = contenuto(casa_.path() + u'/' + f);
            const auto scuri = std::count_if(una.begin(), una.end(),
                                             [](char c) { return static_cast<unsigned char>(c) < 128; });
            QVERIFY2(una.size() > 100000 && scuri > 50, qPrintable(f));  // something is drawn
            QVERIFY2(una == contenuto(casa_.path() + u'/' + altra.replace("sole", "insieme")), qPrintable(f));
        }
    }

    void stessi_titoli_e_ogni_file_valido() {
        for (const std::size_t i :
             {std::size_t(0), std::size_t(7), std::size_t(70), std::size_t(kLettere - 1)}) {
            const QString nome = u'/' + sole_[i].file;
            QProcess p;
            p.start("pdfinfo", {in("insieme") + nome});
            p.waitForFinished(60000);
            QCOMPARE(p.readAllStandardError(), QByteArray());
            const QString info = QString::fromUtf8(p.readAllStandardOutput());
            const QString attesa = esci("pdfinfo", {in("sole") + nome});
            for (const char* chiave :
                 {"Title:", "Creator:", "Producer:", "Pages:", "Page size:", "PDF version:"}) {
                const auto riga = [&](const QString& s) {
                    const auto da = s.indexOf(QLatin1String(chiave));
                    return da < 0 ? QString() : s.mid(da, s.indexOf(u'\n', da) - da);
                };
                QVERIFY2(!riga(info).isEmpty(), chiave);
                QCOMPARE(riga(info), riga(attesa));
            }
            QVERIFY(contenuto(in("insieme") + nome).size() < contenuto(in("sole") + nome).size() + 40000);
        }
    }

    // What cannot be divided comes out letter by letter.
    void una_alla_volta_dove_non_si_divide() {
        Facce facce;
        std::vector<Detto> detti;
        QVERIFY(QDir().mkpath(in("rifiutate")));
        {
            Tiratura t(facce);
            t.dividi = [](const QByteArray&, const std::vector<LetteraPdf>&) {
                return std::vector<QByteArray>();
            };
            t.stampato = [&](const std::string& titolo, const QString& f, bool bene) {
                detti.push_back({titolo, QFileInfo(f).fileName(), bene});
            };
            RecordingPrinter r;
            r.finito = [&](LavoroStampa&& l) { t.aggiungi(std::move(l)); };
            for (int n = 1; n <= 3; ++n) {
                QVERIFY(t.apri(in("rifiutate/%1.pdf").arg(n)));
                r.document_title = "Lettera";
                r.rich_text(rtf::leggi(lettera(n)));
                r.end_doc();
            }
            QVERIFY(detti.empty());
        }
        QCOMPARE(detti.size(), std::size_t(3));
        QVERIFY(detti[2].riuscito);
        const auto letta = leggi_pdf(in("rifiutate/3.pdf"));
        QCOMPARE(letta.size(), std::size_t(1));
        QVERIFY(letta[0].trova("DITTA"));
    }

    // A folder that takes no files: each letter is told as failed, as it is without a run.
    void guasti_detti_uno_per_uno() {
        QFile(in("non_cartella")).open(QIODevice::WriteOnly);
        StampanteQt s;
        const auto sole = stampa(s, in("non_cartella/x"), false);
        const auto insieme = stampa(s, in("non_cartella/x"), true);
        QCOMPARE(sole.size(), std::size_t(kLettere));
        QVERIFY(!sole[0].riuscito);
        QVERIFY(insieme == sole);
        // The printer is as good as new.
        QVERIFY(stampa(s, in("dopo"), true).back().riuscito);
    }

    // Whatever the whole looks like, there are files of all letters or none.
    void intero_rovinato() {
        QBuffer tutto;
        Facce facce;
        {
            const auto uscita = uscita_pdf(tutto);
            RecordingPrinter r;
            r.finito = [&](LavoroStampa&& l) { QVERIFY(dipingi(l, *uscita, facce)); };
            for (int n = 1; n <= 2; ++n) {
                r.rich_text(rtf::leggi(lettera(n)));
                r.end_doc();
            }
            QVERIFY(uscita->fine());
        }
        const QByteArray byte = tutto.data();
        const std::vector<LetteraPdf> due{{"a", 1}, {"b", 1}};
        QCOMPARE(dividi_pdf(byte, due).size(), std::size_t(2));
        QVERIFY(dividi_pdf(byte, {{"a", 1}}).empty());
        QVERIFY(dividi_pdf(byte, {{"a", 1}, {"b", 2}}).empty());
        QVERIFY(dividi_pdf(QByteArray(), due).empty());
        for (qsizetype n = 0; n < byte.size() - 8; n += 97) QVERIFY(dividi_pdf(byte.left(n), due).empty());
        for (qsizetype n = byte.size() - 8; n < byte.size(); ++n)
            QVERIFY(dividi_pdf(byte.left(n), due).empty());
        std::mt19937 caso(1);
        for (int giro = 0; giro < 500; ++giro) {
            QByteArray male = byte;
            for (int k = 0; k < 5; ++k)
                male[static_cast<qsizetype>(caso() % static_cast<unsigned>(male.size()))] =
                    static_cast<char>(caso());
            const auto file = dividi_pdf(male, due);
            QVERIFY(file.empty() || file.size() == 2);
        }
    }

    // The screen of the certificates prints a run: all are drawn before the first is told.
    void le_certificazioni_sono_una_tornata() {
        Banco b;
        b.fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        std::vector<RecFattura> fatture;
        for (const int n : {1, 2}) {
            RecFattura f = fattura_vuota();
            f.numfor = n;
            f.dverrit = "15022024";
            f.impon[0] = 100;
            f.rac[0] = 20;
            fatture.push_back(f);
        }
        b.fatture(fatture);
        RecProspetto p;
        p.nomeprosp = "Certificazione";
        p.numprosp = "001";
        b.file("lumoral.tot") = byte_di(p);
        b.file("vexoral.001") = R"({\rtf1 Spett.le $$$251$$$\par})";
        PiattaformaPdf piattaforma;
        Programma prog(b.disco, piattaforma, "1");
        prog.apriarchivi();
        piattaforma.pdf.scelta.cartella_pdf = in("certificazioni");
        std::vector<std::string> passi;
        piattaforma.pdf.avanza = [&](const std::string& t, int) { passi.push_back("disegna " + t); };
        piattaforma.pdf.stampato = [&](const std::string& t, const QString&, bool) {
            passi.push_back("detta " + t);
        };
        Lumcer schermo(prog);
        schermo.attivata(Attivazione::aperta);
        piattaforma.risposte = {Risposta::si};
        schermo.certif.premi();
        const std::vector<std::string> attesi{
            "disegna Certificazione 1 ROSSI", "disegna Certificazione 2 BIANCHI",
            "detta Certificazione 1 ROSSI", "detta Certificazione 2 BIANCHI"};
        QCOMPARE(passi, attesi);
        QVERIFY(leggi_pdf(in("certificazioni/Certificazione 2 BIANCHI.pdf"))[0].trova("BIANCHI"));
    }
};

QTEST_MAIN(ProvaTiratura)
#include "tiratura.moc"
