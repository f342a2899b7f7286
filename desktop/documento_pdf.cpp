#include "desktop/documento_pdf.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
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

QByteArray byte_di_file(const QString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
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
std::string posto_per_copia(Disco& disco, const QString& file) {
    for (int n = 1;; ++n) {
        const std::string nome = nome_corto(file, n);
        const QString vero = QString::fromStdString(disco.reale(nome));
        if (!QFileInfo::exists(vero) || byte_di_file(vero) == byte_di_file(file)) return nome;
    }
}

bool copia(Disco& disco, const QString& file, const std::string& nome) {
    const QString vero = QString::fromStdString(disco.reale(nome));
    if (QFileInfo::exists(vero)) return true;
    return QDir().mkpath(QFileInfo(vero).absolutePath()) && QFile::copy(file, vero);
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
    const QString radice = disco ? QDir(QString::fromStdString(disco->reale(""))).absolutePath() : QString();
    if (disco && file.startsWith(radice + '/')) return da_qs(file.mid(radice.size()).replace('/', '\\'));
    return da_qs(QDir::toNativeSeparators(file));
}

std::optional<std::string> pdf_da_collegare(Disco& disco, const QString& file, const Domande& domande) {
    const std::string come_sta = percorso_di_sistema(&disco, file);
    if (come_sta.size() <= kPosto) return come_sta;
    const std::string nome = posto_per_copia(disco, file);
    if (!domande.chiedi(
            QStringLiteral("Il percorso del documento ha %1 caratteri e in archivio ne entrano %2.\n"
                           "Copiarlo in %3?")
                .arg(come_sta.size())
                .arg(kPosto)
                .arg(qs(nome))))
        return {};
    if (copia(disco, file, nome)) return nome;
    domande.avverte(QStringLiteral("Il documento non è stato copiato in %1.").arg(qs(nome)));
    return {};
}

void accoglie_pdf(Finestra& f) {
    new Accoglienza(f);
}

}  // namespace ambra
