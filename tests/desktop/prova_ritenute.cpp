// The windows of the due dates of withheld tax, of the year's summary and of what is open by age.
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "desktop/parts/colori.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

RecFattura pagata(const char* numero, double base, double aliquota, const char* data) {
    RecFattura f = fattura_vuota();
    f.numfor = 1;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20240105";
    f.impon[0] = base;
    f.rac[0] = base * aliquota / 100;
    f.sca[0] = f.ver[0] = base - f.rac[0];
    f.dsca[0] = "01022024";
    f.dver[0] = data;
    return f;
}

struct Tavolo : BancoFinestre {
    explicit Tavolo(const std::vector<RecFattura>& documenti) {
        fornitori({fornitore_vuoto("ROSSI")});
        fatture(documenti);
        avvia();
    }
    QModelIndex cella(const char* schermo, const char* griglia, int riga, int colonna) {
        return widget<VistaGriglia>(schermo, griglia)->tabella()->model()->index(riga - 1, colonna);
    }
    QString testo(const char* schermo, const char* griglia, int riga, int colonna) {
        return cella(schermo, griglia, riga, colonna).data().toString();
    }
};

}  // namespace

class ProvaRitenute : public QObject {
    Q_OBJECT
  private slots:
    void un_clic_mostra_i_pagamenti_e_segna_apre_il_versamento() {
        Tavolo b({pagata("7", 1000, 20, "10012024"), pagata("8", 900, 20, "10022024")});
        b.apri("mrvcal");
        QCOMPARE(b.testo("mrvcal", "dettaglio", 1, 1), QString("7"));
        const QColor scaduta = b.cella("mrvcal", "elenco", 1, 6).data(Qt::BackgroundRole).value<QColor>();
        QCOMPARE(b.testo("mrvcal", "elenco", 1, 6), QString("scaduta"));
        QCOMPARE(scaduta, colore_di(0x8080FF));
        QVERIFY(!b.cella("mrvcal", "elenco", 2, 6).data(Qt::BackgroundRole).isValid());
        b.clic_cella("mrvcal", "elenco", 2, 4);
        QCOMPARE(b.testo("mrvcal", "dettaglio", 1, 1), QString("8"));
        QVERIFY(b.widget<QLabel>("mrvcal", "scelto")->text().contains("180,00"));
        b.clic(b.widget<QPushButton>("mrvcal", "segna"));
        QCOMPARE(b.widget<QLineEdit>("lumpgr", "txt")->text(), QString("180,00"));
    }

    void cio_che_non_ce_lascia_il_posto() {
        Tavolo b({pagata("7", 1000, 4, "10032024")});
        b.apri("mrvcal");
        QVERIFY(!b.widget<QWidget>("mrvcal", "senza")->isVisible());
        QVERIFY(b.widget<QLabel>("mrvcal", "finora")->isVisible());
        auto* dettaglio = b.widget<QWidget>("mrvcal", "dettaglio");
        QCOMPARE(dettaglio->width(), b.widget<QWidget>("mrvcal", "elenco")->width());

        Tavolo c({pagata("7", 1000, 20, "10032024"), pagata("9", 1000, 20, "")});
        c.apri("mrvcal");
        QVERIFY(c.widget<QWidget>("mrvcal", "senza")->isVisible());
        QVERIFY(!c.widget<QLabel>("mrvcal", "finora")->isVisible());
        QCOMPARE(c.testo("mrvcal", "senza", 1, 1), QString("9"));
    }

    void le_intestazioni_di_un_elenco_vuoto_stanno_come_le_colonne() {
        Tavolo b({});
        b.apri("mrvcal");
        const auto* m = b.widget<VistaGriglia>("mrvcal", "elenco")->tabella()->model();
        QCOMPARE(m->rowCount(), 0);
        const auto verso = [&](int colonna) {
            return m->headerData(colonna, Qt::Horizontal, Qt::TextAlignmentRole).toInt() &
                   Qt::AlignHorizontal_Mask;
        };
        QCOMPARE(verso(0), int(Qt::AlignLeft));
        QCOMPARE(verso(2), int(Qt::AlignHCenter));
        QCOMPARE(verso(4), int(Qt::AlignRight));
        QVERIFY(!b.widget<QPushButton>("mrvcal", "segna")->isEnabled());
    }

    void il_riepilogo_cambia_anno_e_causale() {
        Tavolo b({pagata("7", 1000, 20, "10012024"), pagata("8", 900, 20, "10022023")});
        b.apri("mrvcal");
        b.clic(b.widget<QPushButton>("mrvcal", "riepilogo"));
        QCOMPARE(b.testo("mrvcau", "elenco", 1, 3), QString("1.000,00"));
        b.clic_cella("mrvcau", "elenco", 1, 2);
        QCOMPARE(b.testo("mrvcau", "elenco", 1, 2), QString("M"));
        auto* anno = b.widget<QLineEdit>("mrvcau", "anno");
        anno->selectAll();
        QTest::keyClicks(anno, "2023");
        b.quieta();
        QCOMPARE(b.testo("mrvcau", "elenco", 1, 3), QString("900,00"));
    }

    // The list as it stands, with the causale that the user chose.
    void il_riepilogo_si_esporta_per_il_consulente() {
        Tavolo b({pagata("7", 1000, 20, "10012024")});
        b.apri("mrvcau");
        b.clic_cella("mrvcau", "elenco", 1, 2);
        const QTemporaryDir dove;
        QTimer::singleShot(200, qApp, [&] {
            auto* d = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!d) qFatal("no file dialog");
            d->setDirectory(dove.path());
            d->selectNameFilter(d->nameFilters().at(1));
            d->findChild<QLineEdit*>("fileNameEdit")->setText("cu");
            QMetaObject::invokeMethod(d, "accept");
        });
        b.clic(b.widget<QPushButton>("mrvcau", "esporta"));
        QFile csv(dove.filePath("cu.csv"));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        const QList<QByteArray> righe = csv.readAll().split('\n');
        QVERIFY(righe.at(0).contains("Fornitore;Codice fiscale;Causale;Lordo senza iva;Non soggetto"));
        QCOMPARE(righe.at(1), QByteArray("ROSSI;;M;1000,00;;1000,00;200,00;1040;;200,00\r"));
        QVERIFY(righe.at(2).startsWith("Totale;;;1000,00;"));
    }

    void una_data_rifa_lo_scoperto() {
        RecFattura f = pagata("7", 1000, 0, "");
        f.ver[0] = 0;
        Tavolo b({f});
        b.apri("mrvanz");
        QCOMPARE(b.testo("mrvanz", "elenco", 1, 3), QString("1.000,00"));  // 43 days
        auto* data = b.widget<QWidget>("mrvanz", "text1(0)")->findChild<QLineEdit*>();
        if (!data) data = b.widget<QLineEdit>("mrvanz", "text1(0)");
        data->selectAll();
        QTest::keyClicks(data, "31/01/2024");
        b.quieta();
        QCOMPARE(b.testo("mrvanz", "elenco", 1, 1), QString("1.000,00"));
        QCOMPARE(b.testo("mrvanz", "elenco", 2, 0), QString("Totale"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaRitenute prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_ritenute.moc"
