// What a spreadsheet program makes of the lists that the program writes: every list of every screen, filled
// from the demo, as .xlsx and as .csv, opened by LibreOffice and compared cell by cell with the list.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>
#include <cstring>
#include <functional>

#include "ambra/demo.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "parti/parti.h"
#include "screen/foglio.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

constexpr int kAttesa = 180'000;  // milliseconds, on a machine that does much besides
// Separator ';', quote '"', UTF-8, from line 1, the language Italian.
constexpr const char* kFiltroCsv = "CSV:59,34,76,1,%1,1040,false,false";

struct ListaTolta {
    QString nome;
    Foglio foglio;
};

// ---- the lists ----

void premi(Schermo& s, const char* nome) {
    if (auto* b = dynamic_cast<Bottone*>(s.trova(nome)); b && b->premuto) b->premuto();
}

// Somebody has paid and not said when.
void togli_una_data(Banco& b) {
    std::string& ftr = b.file("ftr");
    for (std::size_t n = 0; n < ftr.size() / sizeof(RecFattura); ++n) {
        RecFattura f{};
        std::memcpy(&f, ftr.data() + n * sizeof f, sizeof f);
        if (f.ver[0] == 0 || somma(f.rac) == 0 || leggi_numero(f.dverrit.testo()) != 0) continue;
        f.dver[0] = "";
        ftr.replace(n * sizeof f, sizeof f, byte_di(f));
        return;
    }
}

// Opens a screen as far as it can be without a document, over the whole life of the demo.
Schermo* aperta(Banco& b, const std::string& nome) {
    if (!b.prog.schermi.apri_foglia(nome)) b.prog.schermi.apri(nome);
    Schermo* s = b.prog.schermi.caricato(nome);
    for (const auto& [campo, giorno] : {std::pair{"text1(0)", "01/01/2000"}, {"text1(1)", "31/12/2030"}})
        if (auto* d = dynamic_cast<CampoData*>(s->trova(campo))) d->testo(giorno);
    premi(*s, "command3d2");
    b.piattaforma.file = {"non_c_e.xml"};
    premi(*s, "apri");
    return s;
}

// Texts that a spreadsheet could take for something else.
Foglio insidie() {
    using enum Allineamento;
    Griglia g;
    g.colonne({{"Testo", 1000}, {"Importo", 1000, destra}, {"Centro", 1000, centro}});
    for (const char* testo :
         {"=1+1",      "+39 055 123", "-cmd",       "@SUM(A1)",           "007",  "12/5",
          "1,10",      "1.000",       "1e5",        "detto \"il Conte\"", "a;b",  "a,b",
          "riga\ndue", "VERO",        "01/02/2024", "29/02/1900",         "0,5%", "Citt\xE0 \x80 \xFF",
          "'apice",    "12-3",        "1/2/24",     "00123456789",        "a  b"})
        g.aggiungi({testo, testo, testo});
    for (const char* importo : {"1.234.567,89", "-0,01", "0,00", "12345678901234567,89", "1.000", "7", "+5"})
        g.aggiungi({"x", importo, importo});
    return foglio_di(g);
}

std::vector<ListaTolta> tutte_le_liste() {
    Banco b;
    if (!demo::crea(b.memoria, {b.piattaforma.oggi})) qFatal("no demo");
    togli_una_data(b);
    b.avvia();
    std::vector<ListaTolta> liste = {{"insidie", insidie()}};
    for (const std::string& nome : b.prog.schermi.nomi()) {
        Schermo* s = aperta(b, nome);
        for (const Controllo* c : s->controlli())
            if (const auto* g = dynamic_cast<const Griglia*>(c))
                liste.push_back({QString::fromStdString(nome + "." + c->nome()), foglio_di(*g)});
        if (nome != "vexoraf") b.prog.schermi.chiudi(nome);
    }
    return liste;
}

// ---- what the other program shows ----

struct CellaVista {
    QString tipo, valore, testo;
};
using Tavola = std::vector<std::vector<CellaVista>>;

// A cell's paragraphs, with the blanks that are told by elements.
QString testo_di(QXmlStreamReader& x) {
    QString s;
    bool primo = true, dentro = false;
    while (!(x.readNext() == QXmlStreamReader::EndElement && x.name() == u"table-cell") && !x.atEnd()) {
        if (x.name() == u"p") {
            dentro = x.isStartElement();
            if (dentro && !std::exchange(primo, false)) s += u'\n';
        }
        if (dentro && x.isCharacters()) s += x.text();
        if (x.isStartElement() && x.name() == u"s")
            s += QString(std::max(1, x.attributes().value("text:c").toInt()), u' ');
    }
    return s;
}

Tavola letta(const QString& fods) {
    QFile file(fods);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QXmlStreamReader x(&file);
    Tavola t;
    while (!x.atEnd()) {
        if (x.readNext() != QXmlStreamReader::StartElement) continue;
        const auto quante = [&](const char* quali) {
            return std::max(1, x.attributes().value(quali).toInt());
        };
        if (x.name() == u"table-row") {
            if (quante("table:number-rows-repeated") == 1) t.emplace_back();
        } else if (x.name() == u"table-cell" && !t.empty()) {
            const int n = quante("table:number-columns-repeated");
            CellaVista c{x.attributes().value("office:value-type").toString(),
                         x.attributes().value("office:value").toString(),
                         {}};
            if (c.tipo == "date") c.valore = x.attributes().value("office:date-value").toString();
            c.testo = testo_di(x);
            for (int i = 0; i < n && n < 100; ++i) t.back().push_back(c);
        }
    }
    return t;
}

// A user's own settings would show amounts as another country writes them.
void profilo_italiano(const QString& cartella) {
    QDir().mkpath(cartella + "/user");
    QFile f(cartella + "/user/registrymodifications.xcu");
    if (!f.open(QIODevice::WriteOnly)) qFatal("no profile");
    f.write(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<oor:items xmlns:oor=\"http://openoffice.org/2001/registry\"><item "
        "oor:path=\"/org.openoffice.Setup/L10N\"><prop oor:name=\"ooSetupSystemLocale\" oor:op=\"fuse\">"
        "<value>it-IT</value></prop></item></oor:items>\n");
}

// Opens the files of one kind and gives what it shows of each, by the name of the list.
std::map<QString, Tavola> aperti(const QString& cartella, const QString& tipo, const QString& filtro) {
    const QString fuori = cartella + "/visti-" + QString::number(qHash(tipo + filtro));
    QStringList argomenti = {"-env:UserInstallation=file://" + cartella + "/profilo", "--headless"};
    if (!filtro.isEmpty()) argomenti << "--infilter=" + filtro;
    argomenti << "--convert-to"
              << "fods"
              << "--outdir" << fuori;
    for (const QString& f : QDir(cartella).entryList({"*." + tipo})) argomenti << cartella + "/" + f;
    QProcess p;
    p.start(QStandardPaths::findExecutable("soffice"), argomenti);
    if (!p.waitForFinished(kAttesa)) p.kill();
    std::map<QString, Tavola> viste;
    for (const QFileInfo& f : QDir(fuori).entryInfoList({"*.fods"}))
        viste[f.completeBaseName()] = letta(f.absoluteFilePath());
    return viste;
}

QString qs(const std::string& windows1252) {
    return QString::fromStdString(a_utf8(windows1252));
}

// Each cell of each list beside what is shown of it; `male` tells what is wrong with one, "" for nothing.
void confronta(const std::vector<ListaTolta>& liste, const std::map<QString, Tavola>& viste,
               const std::function<QString(const CellaFoglio&, const CellaVista&)>& male) {
    for (const ListaTolta& l : liste) {
        const auto vista = viste.find(l.nome);
        QVERIFY2(vista != viste.end(), qPrintable(l.nome + " was not opened"));
        const Tavola& t = vista->second;
        for (std::size_t r = 0; r < l.foglio.righe(); ++r) {
            QVERIFY2(r < t.size(), qPrintable(l.nome + " ends early"));
            for (std::size_t c = 0; c < l.foglio.colonne.size(); ++c) {
                const CellaFoglio& attesa = l.foglio.cella(r, c);
                const CellaVista v = c < t[r].size() ? t[r][c] : CellaVista{};
                const QString perche = male(attesa, v);
                QVERIFY2(perche.isEmpty(),
                         qPrintable(QString("%1 %2,%3: \"%4\" shows as \"%5\" (%6 %7): %8")
                                        .arg(l.nome)
                                        .arg(r)
                                        .arg(c)
                                        .arg(qs(attesa.testo), v.testo, v.tipo, v.valore, perche)));
            }
        }
    }
}

}  // namespace

class FogliAperti : public QObject {
    Q_OBJECT
  private slots:
    void initTestCase() {
        if (QStandardPaths::findExecutable("soffice").isEmpty())
            QSKIP("soffice is not here: install LibreOffice Calc to see the sheets opened");
        QVERIFY(dove.isValid());
        profilo_italiano(dove.filePath("profilo"));
        liste = tutte_le_liste();
        for (const ListaTolta& l : liste) {
            QVERIFY2(l.foglio.righe() > 1, qPrintable(l.nome + " is empty: nothing would be compared"));
            QCOMPARE(scrivi_xlsx(l.foglio, dove.filePath(l.nome + ".xlsx").toStdString()), "");
            QFile csv(dove.filePath(l.nome + ".csv"));
            QVERIFY(csv.open(QIODevice::WriteOnly));
            csv.write(QByteArray::fromStdString(csv_di(l.foglio)));
        }
    }

    // The same texts, amounts as numbers, dates as dates, nothing computed.
    void xlsx() {
        confronta(liste, aperti(dove.path(), "xlsx", {}),
                  [](const CellaFoglio& a, const CellaVista& v) -> QString {
                      const bool tenuto = a.testo.size() < 17 && a.testo != "29/02/1900";
                      if (a.tipo == CellaFoglio::Tipo::importo && tenuto) {
                          if (v.tipo != "float" || v.valore.toDouble() != a.valore) return "not that number";
                          return v.testo == qs(a.testo) || a.testo[0] == '+' ? "" : "another text";
                      }
                      if (a.tipo == CellaFoglio::Tipo::data && tenuto && v.tipo != "date")
                          return "not a date";
                      if (a.tipo == CellaFoglio::Tipo::testo && !a.testo.empty() && v.tipo != "string")
                          return "not a text";
                      return v.testo == qs(a.testo) ? "" : "another text";
                  });
    }

    // Every field whole and as written: only the points of the thousands are gone, and formulas are texts.
    void csv_come_testo() {
        const QString tutte_testo = "1/2/2/2/3/2/4/2/5/2/6/2/7/2/8/2/9/2/10/2/11/2/12/2/13/2/14/2";
        confronta(liste, aperti(dove.path(), "csv", QString(kFiltroCsv).arg(tutte_testo)),
                  [](const CellaFoglio& a, const CellaVista& v) -> QString {
                      QString t = qs(a.testo);
                      if (a.tipo == CellaFoglio::Tipo::importo) t.remove(u'.');
                      if (v.testo == t)
                          return QString("=@").contains(t.left(1)) && !t.isEmpty() ? "a formula" : "";
                      const bool difeso = !t.isEmpty() && QString("=+-@").contains(t[0]);
                      return difeso && v.testo == u'\'' + t ? "" : "another text";
                  });
    }

    // Opened without a word said about the columns: the amounts are numbers.
    void csv_come_si_apre() {
        confronta(liste, aperti(dove.path(), "csv", QString(kFiltroCsv).arg("")),
                  [](const CellaFoglio& a, const CellaVista& v) -> QString {
                      const bool troppe_cifre = a.testo.size() > 17;
                      if (a.tipo != CellaFoglio::Tipo::importo || troppe_cifre) return "";
                      return v.tipo == "float" && v.valore.toDouble() == a.valore ? "" : "not that number";
                  });
    }

  private:
    QTemporaryDir dove;
    std::vector<ListaTolta> liste;
};

QTEST_GUILESS_MAIN(FogliAperti)

#include "fogli_aperti.moc"
