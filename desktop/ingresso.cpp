#include "desktop/ingresso.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <memory>

#include "core/disco_attento.h"
#include "core/filerecord.h"
#include "core/nomi_file.h"
#include "core/numeri.h"
#include "desktop/avvio.h"
#include "desktop/parts/testo_qt.h"
#include "qt/ricordi.h"
#include "records/stabile.h"

namespace ambra {

namespace {

const std::string kStabili = kCartella + "lumora.tot";
const QString kUltimi = QStringLiteral("stabili/ultimi");
const QString kAttenzione = QStringLiteral("Attenzione");
constexpr int kQuantiUltimi = 10;

std::string nome_di(const RecStabile& s) {
    const std::string t = s.nome.testo();
    return std::string(rifila(t.substr(0, t.find('\0'))));
}

// Every file that is opened with the building.
std::vector<std::string> insieme_di(const std::string& nnn) {
    std::vector<std::string> file = {kStabili, kCartella + "lumora.tt2"};
    for (const char* e : {"tot", "cnd", "cns", "pia", "mov", "cn2", "tfr", "for", "srf", "ftr"})
        file.push_back(nome_file(nnn, e));
    return file;
}

QString luogo(Disco& disco, const std::string& percorso) {
    return QString::fromStdString(disco.reale(percorso));
}

// 0, or why a file that is there does not open.
int non_si_apre(Disco& disco, const std::string& percorso) {
    Cosa che = Cosa::niente;
    if (const int e = disco.cosa_c_e(percorso, che); e != 0 || che == Cosa::niente) return e;
    std::unique_ptr<FileAperto> f;
    return disco.apri(percorso, Apertura::lettura, f);
}

}  // namespace

std::vector<StabileInArchivio> stabili_in_archivio(Disco& disco) {
    std::vector<StabileInArchivio> tutti;
    Errore err;
    FileDi<RecStabile> file(err, 20);
    if (!file.apri(disco, kStabili, Apertura::lettura)) return tutti;
    const int quanti = static_cast<int>(std::min(file.quanti(), 999L));
    for (int n = 1; n <= quanti; ++n) {
        RecStabile s{};
        if (!leggi(file, n, s)) continue;
        if (const std::string nome = nome_di(s); !nome.empty()) tutti.push_back({n, qs(nome)});
    }
    return tutti;
}

Ostacolo ostacolo(Disco& disco, const std::string& nnn,
                  const std::function<bool(const QString&)>& scrivibile) {
    using enum Ostacolo::Che;
    for (const std::string& f : insieme_di(nnn))
        if (const int e = non_si_apre(disco, f); e != 0 && e != errore::percorso_mancante)
            return {chiuso,
                    QStringLiteral("Il file %1 non si apre: %2.").arg(luogo(disco, f), qs(in_parole(e)))};
    const auto stabili = stabili_in_archivio(disco);
    if (stabili.empty())
        return {
            senza_archivio,
            QStringLiteral("Nessun archivio in %1: manca %2.").arg(luogo(disco, ""), luogo(disco, kStabili))};
    const int numero = static_cast<int>(leggi_numero(nnn));
    if (std::none_of(stabili.begin(), stabili.end(), [&](const auto& s) { return s.numero == numero; }))
        return {senza_stabile, QStringLiteral("Lo stabile %1 non è in archivio.").arg(qs(nnn))};
    for (const std::string& f : insieme_di(nnn))
        if (QFileInfo::exists(luogo(disco, f)) && !scrivibile(luogo(disco, f)))
            return {sola_lettura,
                    QStringLiteral("Il file %1 non si può scrivere: l'archivio si può consultare, "
                                   "ma quel che si registra non viene conservato.")
                        .arg(luogo(disco, f))};
    return {};
}

void ricorda_stabile(int numero) {
    QStringList ultimi = ricordi().value(kUltimi).toStringList();
    ultimi.removeAll(QString::number(numero));
    ultimi.prepend(QString::number(numero));
    ricordi().setValue(kUltimi, QStringList(ultimi.mid(0, kQuantiUltimi)));
}

std::optional<std::string> ingresso(const std::string& radice, std::string comando) {
    using enum Ostacolo::Che;
    if (!si_puo_aprire(radice)) return {};
    const auto vero = disco_vero(radice);
    DiscoAttento disco(*vero);
    const auto scrivibile = [](const QString& file) { return QFileInfo(file).isWritable(); };
    for (QString avviso;;) {
        if (comando.empty() && !stabili_in_archivio(disco).empty()) {
            SceltaStabile scelta(stabili_in_archivio(disco), avviso);
            if (scelta.exec() != QDialog::Accepted) return {};
            comando = std::to_string(scelta.scelto());
        }
        const std::string nnn = nnn_di(comando);
        const Ostacolo o = ostacolo(disco, nnn, scrivibile);
        if (o.che == chiuso || o.che == senza_archivio) {
            QMessageBox::critical(nullptr, kAttenzione, o.parole);
            return {};
        }
        if (o.che == sola_lettura) {
            QMessageBox m(QMessageBox::Warning, kAttenzione, o.parole);
            QPushButton* apri = m.addButton(QStringLiteral("&Consulta"), QMessageBox::AcceptRole);
            m.setDefaultButton(m.addButton(QStringLiteral("&Esci"), QMessageBox::RejectRole));
            m.exec();
            if (m.clickedButton() != apri) return {};
        }
        if (o.che != senza_stabile) {
            ricorda_stabile(static_cast<int>(leggi_numero(nnn)));
            return comando;
        }
        avviso = o.parole;
        comando.clear();
    }
}

}  // namespace ambra
