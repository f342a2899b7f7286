#include "desktop/documento_pdf.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

#include "core/disco.h"
#include "desktop/finestra.h"
#include "desktop/parts/testo_qt.h"
#include "records/fattura.h"

namespace ambra {

namespace {

const std::string kCartellaPdf = "\\LUMDIR\\PDF\\";
constexpr std::size_t kPosto = sizeof(RecFattura::pdf);
const QString kEstensione = QStringLiteral(".pdf");
#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity kMaiuscole = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity kMaiuscole = Qt::CaseSensitive;
#endif

// The bytes of a file that lies anywhere; false if it cannot be read.
bool byte_di_file(const QString& file, std::string& byte) {
    const QFileInfo dove(file);
    return disco_vero(dove.absolutePath().toStdString())->leggi_tutto("\\" + da_qs(dove.fileName()), byte) ==
           0;
}

// The n-th name to try: the file's own, cut to fit, told apart by a number.
std::string nome_corto(const QString& file, int n) {
    QString base;
    for (const QChar c : QFileInfo(file).completeBaseName())
        base += c.isLetterOrNumber() || QStringLiteral(" -_").contains(c) ? c : QChar('_');
    const QString coda = n > 1 ? QStringLiteral("-%1").arg(n) : QString();
    const auto posto =
        static_cast<qsizetype>(kPosto - kCartellaPdf.size()) - kEstensione.size() - coda.size();
    return kCartellaPdf + da_qs(base.left(posto).trimmed() + coda + kEstensione);
}

// A name that is free, or that of the same document copied before.
std::string posto_per_copia(Disco& disco, const QString& file, const std::string& byte) {
    for (int n = 1;; ++n) {
        const std::string nome = nome_corto(file, n);
        Cosa che = Cosa::niente;
        if (disco.cosa_c_e(nome, che) != 0 || che == Cosa::niente) return nome;
        std::string altro;
        if (disco.leggi_tutto(nome, altro) == 0 && altro == byte) return nome;
    }
}

bool copia(Disco& disco, const std::string& nome, const std::string& byte) {
    Cosa che = Cosa::niente;
    if (disco.cosa_c_e(nome, che) == 0 && che == Cosa::file) return true;
    disco.crea_cartella("\\LUMDIR");
    disco.crea_cartella("\\LUMDIR\\PDF");
    return disco.scrivi_nuovo(nome, byte) == 0 && disco.consolida_cartella(nome) == 0;
}

// The one PDF that is dragged, or nothing.
QString trascinato(const QDropEvent& e) {
    const QList<QUrl> url = e.mimeData()->urls();
    if (url.size() != 1 || !url[0].isLocalFile()) return {};
    const QString file = url[0].toLocalFile();
    return file.endsWith(kEstensione, Qt::CaseInsensitive) && QFileInfo(file).isFile() ? file : QString();
}

class Accoglienza : public QObject {
  public:
    explicit Accoglienza(Finestra& f) : QObject(&f), f_(f) {
        f.setAcceptDrops(true);
        // A field would take the name of the file for a word.
        for (QLineEdit* campo : f.findChildren<QLineEdit*>()) campo->setAcceptDrops(false);
        f.installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() != QEvent::DragEnter && e->type() != QEvent::DragMove && e->type() != QEvent::Drop)
            return QObject::eventFilter(o, e);
        auto& d = static_cast<QDropEvent&>(*e);
        const QString file = trascinato(d);
        if (file.isEmpty() || !f_.schermo()) return false;
        d.acceptProposedAction();
        if (e->type() == QEvent::Drop) collega(file);
        return true;
    }

  private:
    // By the user's road: the view of the PDF opens, the path is typed there.
    void collega(const QString& file) {
        Programma& prog = f_.schermo()->prog;
        if (!prog.chiedi(
                da_qs(QStringLiteral("Collegare %1 a questo documento?").arg(QFileInfo(file).fileName())),
                "Documento PDF"))
            return;
        const auto percorso =
            pdf_da_collegare(prog.disco, file,
                             {[&](const QString& t) { return prog.chiedi(da_qs(t), "Documento PDF"); },
                              [&](const QString& t) { prog.ferma(da_qs(t), "Documento PDF"); }});
        auto* campo = dynamic_cast<CampoTesto*>(f_.schermo()->trova("pdf"));
        auto* vista = dynamic_cast<Bottone*>(f_.schermo()->trova("command3d1(5)"));
        if (!percorso || !campo || !vista) return;
        f_.agisce(*campo, [&] {
            if (!campo->visible()) vista->premi();
            campo->digita(*percorso);
        });
    }

    Finestra& f_;
};

}  // namespace

std::string percorso_di_sistema(Disco* disco, const QString& file) {
    if (!disco) return da_qs(QDir::toNativeSeparators(file));
    QString radice = QDir(QString::fromStdString(disco->reale(""))).absolutePath();
    if (!radice.endsWith('/')) radice += '/';  // but for the root of a drive
    if (!file.startsWith(radice, kMaiuscole)) return da_qs(QDir::toNativeSeparators(file));
    return da_qs('\\' + file.mid(radice.size()).replace('/', '\\'));
}

std::optional<std::string> pdf_da_collegare(Disco& disco, const QString& file, const Domande& domande) {
    const std::string come_sta = percorso_di_sistema(&disco, file);
    if (come_sta.size() <= kPosto) return come_sta;
    std::string byte;
    const bool letto = byte_di_file(file, byte);
    const std::string nome = posto_per_copia(disco, file, byte);
    if (!domande.chiedi(
            QStringLiteral("Il percorso del documento ha %1 caratteri e in archivio ne entrano %2.\n"
                           "Copiarlo in %3?")
                .arg(come_sta.size())
                .arg(kPosto)
                .arg(qs(nome))))
        return {};
    if (letto && copia(disco, nome, byte)) return nome;
    domande.avverte(QStringLiteral("Il documento non è stato copiato in %1.").arg(qs(nome)));
    return {};
}

void accoglie_pdf(Finestra& f) {
    new Accoglienza(f);
}

}  // namespace ambra
