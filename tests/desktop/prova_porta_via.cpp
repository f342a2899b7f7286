// What leaves a list: rows on the clipboard, a file of text, a workbook.
#include <archive.h>
#include <archive_entry.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include "desktop/finestra.h"
#include "desktop/parts/contesto.h"
#include "desktop/parts/porta_via.h"
#include "parti/parti.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Prova : Schermo {
    explicit Prova(Programma& p) : Schermo(p, "prova", "Prova") { aggiungi("griglia", griglia); }
    Griglia griglia;
};

// A window with one list; a hidden column, a filler row, a total.
struct Banchetto {
    Banchetto() {
        s.griglia.colonne({{"Nome", 1000}, {"Data", 1000}, {"Importo", 1000, Allineamento::destra}, {"", 0}});
        s.griglia.aggiungi({"Rossi   ", "01/02/2024", "1.234,50", "7"});
        s.griglia.aggiungi({"=1+1", "", "12", "8"});
        s.griglia.aggiungi({"", " ", "", "9"});
        s.griglia.aggiungi({"Totale", "", "1.246,50", ""});
        Contesto c(f, s);
        vista = c.griglia("griglia");
        auto* l = new QVBoxLayout(&f);
        l->addWidget(vista);
        f.show();
        f.aggiorna();
        f.activateWindow();
        if (!QTest::qWaitForWindowActive(&f)) qFatal("no window in front");
        vista->tabella()->setFocus();
        QGuiApplication::clipboard()->setText("prima");
    }
    void tasto(Qt::Key k) { QTest::keyClick(vista->tabella(), k, Qt::ControlModifier); }
    /// Opens the context menu over a row as the mouse does, takes an entry, and tells all that it offers.
    QStringList dal_menu(int riga, const QString& voce) {
        QTableView* v = vista->tabella();
        const QPoint punto = v->visualRect(v->model()->index(riga, 0)).center();
        QStringList voci;
        QTimer::singleShot(0, v, [&] {
            auto* m = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!m) qFatal("no menu");
            for (QAction* a : m->actions()) {
                voci << a->text();
                if (a->text() == voce) a->trigger();
            }
            m->close();
        });
        QTest::mouseClick(v->viewport(), Qt::RightButton, {}, punto);
        QContextMenuEvent e(QContextMenuEvent::Mouse, punto, v->viewport()->mapToGlobal(punto));
        QCoreApplication::sendEvent(v->viewport(), &e);
        return voci;
    }
    /// What the user does in the file dialog.
    void sceglie(QWidget* dialogo, int filtro, const QString& nome) {
        auto* d = qobject_cast<QFileDialog*>(dialogo);
        if (!d) qFatal("no file dialog");
        d->setDirectory(dove.path());
        d->selectNameFilter(d->nameFilters().at(filtro));
        d->findChild<QLineEdit*>("fileNameEdit")->setText(nome);
        QMetaObject::invokeMethod(d, "accept");
    }
    QString copiato() { return QGuiApplication::clipboard()->text(); }
    PortaVia* porta_via() { return vista->findChild<PortaVia*>(); }

    BancoFinestre b;
    Prova s{b.prog};
    Finestra f{s};
    VistaGriglia* vista = nullptr;
    QTemporaryDir dove;
};

const char* const kCsv =
    "\xEF\xBB\xBFNome;Data;Importo\r\nRossi;01/02/2024;1234,50\r\n'=1+1;;12\r\nTotale;;1246,50\r\n";

QByteArray byte_di(const QString& percorso) {
    QFile f(percorso);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// One part of a workbook.
QByteArray parte(const QString& percorso, const char* nome) {
    archive* a = archive_read_new();
    archive_read_support_format_zip(a);
    QByteArray testo;
    if (archive_read_open_filename(a, qPrintable(percorso), 65536) == ARCHIVE_OK) {
        archive_entry* e = nullptr;
        while (archive_read_next_header(a, &e) == ARCHIVE_OK) {
            if (QByteArray(archive_entry_pathname(e)) != nome) continue;
            char pezzo[4096];
            for (la_ssize_t n; (n = archive_read_data(a, pezzo, sizeof pezzo)) > 0;) testo.append(pezzo, n);
        }
    }
    archive_read_free(a);
    return testo;
}

// Does `che` with the next modal window.
void al_prossimo_dialogo(std::function<void(QWidget*)> che) {
    QTimer::singleShot(200, qApp, [che] {
        QVERIFY(QApplication::activeModalWidget());
        che(QApplication::activeModalWidget());
    });
}

}  // namespace

class ProvaPortaVia : public QObject {
    Q_OBJECT
  private slots:
    void copia_la_riga_scelta() {
        Banchetto t;
        t.vista->tabella()->setCurrentIndex(t.vista->tabella()->model()->index(0, 2));
        t.tasto(Qt::Key_C);
        QCOMPARE(t.copiato(), "Rossi\t01/02/2024\t1.234,50");
        t.vista->tabella()->setCurrentIndex(t.vista->tabella()->model()->index(2, 0));  // a filler
        t.tasto(Qt::Key_C);
        QCOMPARE(t.copiato(), "Rossi\t01/02/2024\t1.234,50");
    }

    void copia_tutte_poi_di_nuovo_una() {
        Banchetto t;
        QTableView* v = t.vista->tabella();
        t.tasto(Qt::Key_A);
        QCOMPARE(v->selectionModel()->selectedRows().size(), 4);
        t.tasto(Qt::Key_C);
        QCOMPARE(t.copiato(),
                 "Nome\tData\tImporto\nRossi\t01/02/2024\t1.234,50\n=1+1\t\t12\nTotale\t\t1.246,50\n");
        v->setCurrentIndex(v->model()->index(3, 0));
        QCOMPARE(v->selectionModel()->selectedRows().size(), 1);
        t.tasto(Qt::Key_C);
        QCOMPARE(t.copiato(), "Totale\t\t1.246,50");
    }

    // The logic has made the list shorter and the window does not show it yet.
    void copia_quel_che_ce_adesso() {
        Banchetto t;
        t.tasto(Qt::Key_A);
        t.s.griglia.righe(2);
        QCOMPARE(t.vista->tabella()->model()->rowCount(), 4);
        t.porta_via()->copia();
        QCOMPARE(t.copiato(), "Nome\tData\tImporto\nRossi\t01/02/2024\t1.234,50\n");
    }

    void sta_nel_menu_di_ogni_lista() {
        Banchetto t;
        QCOMPARE(t.dal_menu(1, "Copia"),
                 QStringList({"Esporta in un foglio di calcolo…", "Copia", "Scegli tutte le righe"}));
        QCOMPARE(t.copiato(), "=1+1\t\t12");
        t.dal_menu(0, "Scegli tutte le righe");
        t.dal_menu(3, "Copia");
        QCOMPARE(t.copiato().count('\n'), 4);
        QCOMPARE(t.vista->tabella()->selectionModel()->selectedRows().size(), 4);
    }

    void il_dialogo_decide_nome_e_tipo_data() {
        QTest::addColumn<int>("filtro");
        QTest::addColumn<QString>("scritto");
        QTest::addColumn<QString>("file");
        QTest::newRow("xlsx") << 0 << "lista"
                              << "lista.xlsx";
        QTest::newRow("csv") << 1 << "lista"
                             << "lista.csv";
        QTest::newRow("una data nel nome") << 1 << "al 01.02.2024"
                                           << "al 01.02.2024.csv";
        QTest::newRow("il nome vince") << 0 << "lista.CSV"
                                       << "lista.CSV";
        QTest::newRow("anche sul csv") << 1 << "lista.xlsx"
                                       << "lista.xlsx";
    }
    void il_dialogo_decide_nome_e_tipo() {
        QFETCH(int, filtro);
        QFETCH(QString, scritto);
        QFETCH(QString, file);
        Banchetto t;
        al_prossimo_dialogo([&](QWidget* w) { t.sceglie(w, filtro, scritto); });
        t.tasto(Qt::Key_E);
        QCOMPARE(QDir(t.dove.path()).entryList(QDir::Files), QStringList(file));
        const QByteArray byte = byte_di(t.dove.filePath(file));
        QVERIFY(file.endsWith("csv", Qt::CaseInsensitive) ? byte == kCsv : byte.startsWith("PK"));
    }

    void un_file_che_ce_si_sostituisce_dopo_una_domanda() {
        Banchetto t;
        QFile c_e(t.dove.filePath("lista.csv"));
        QVERIFY(c_e.open(QIODevice::WriteOnly));
        c_e.write("vecchio");
        c_e.close();
        for (const bool si : {false, true}) {
            al_prossimo_dialogo([&](QWidget* w) {
                al_prossimo_dialogo([&](QWidget* domanda) {
                    auto* m = qobject_cast<QMessageBox*>(domanda);
                    QVERIFY(m && m->text().contains("lista.csv esiste già"));
                    if (!si) al_prossimo_dialogo([](QWidget* di_nuovo) { di_nuovo->close(); });
                    m->button(si ? QMessageBox::Yes : QMessageBox::No)->click();
                });
                t.sceglie(w, 1, "lista");
            });
            t.porta_via()->esporta();
            QCOMPARE(byte_di(c_e.fileName()), QByteArray(si ? kCsv : "vecchio"));
        }
    }

    void celle_col_loro_tipo() {
        Banchetto t;
        const QString file = t.dove.filePath("lista.xlsx");
        t.porta_via()->esporta_in(file);
        const QByteArray foglio = parte(file, "xl/worksheets/sheet1.xml");
        QVERIFY2(foglio.contains("<v>1234.5</v>"), foglio);
        QVERIFY(foglio.contains("<v>45323</v>"));  // 1 February 2024
        QVERIFY(foglio.contains("<v>1246.5</v>"));
        QVERIFY(!foglio.contains("<f>"));
        QVERIFY(!foglio.contains("r=\"A5\"") && !foglio.contains("r=\"D"));
        const QByteArray parole = parte(file, "xl/sharedStrings.xml");
        for (const char* p : {">Nome<", ">Rossi<", ">=1+1<", ">Totale<"}) QVERIFY2(parole.contains(p), p);
        const QByteArray stili = parte(file, "xl/styles.xml");
        QVERIFY(stili.contains("dd/mm/yyyy"));
    }

    void cio_che_non_si_puo_scrivere_e_detto() {
        Banchetto t;
        for (const char* nome : {"manca/lista.xlsx", "manca/lista.csv"}) {
            QString detto;
            al_prossimo_dialogo([&](QWidget* w) {
                auto* m = qobject_cast<QMessageBox*>(w);
                QVERIFY(m);
                detto = m->text();
                m->accept();
            });
            t.porta_via()->esporta_in(t.dove.filePath(nome));
            QVERIFY2(detto.contains("non si può scrivere") && detto.contains(nome), qPrintable(detto));
        }
        QVERIFY(QDir(t.dove.path()).isEmpty());
    }

    void date_e_numeri_che_un_foglio_non_tiene_restano_testi() {
        Griglia g;
        g.colonne({{"D", 100}, {"N", 100, Allineamento::destra}});
        g.aggiungi({"28/02/1900", "12345678901234567890,12"});
        QTemporaryDir dove;
        const QString file = dove.filePath("x.xlsx");
        QCOMPARE(scrivi_xlsx(foglio_di(g), file.toStdString()), "");
        const QByteArray parole = parte(file, "xl/sharedStrings.xml");
        QVERIFY(parole.contains(">28/02/1900<") && parole.contains(">12345678901234567890,12<"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaPortaVia prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_porta_via.moc"
