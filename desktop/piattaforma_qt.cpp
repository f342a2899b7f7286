#include "desktop/piattaforma_qt.h"

#include <QApplication>
#include <QColorDialog>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "core/disco.h"
#include "desktop/documento_pdf.h"
#include "desktop/parts/colori.h"
#include "desktop/parts/testo_qt.h"
#include "qt/ricordi.h"

namespace ambra {

namespace {

const QString kCartella = QStringLiteral("cartelle/documenti");  // the last one a file was picked from
constexpr int kAperto = 33, kNonAperto = 31, kFileMancante = 2, kPercorsoMancante = 3;

// A dialog shows the arrow: the user is asked, nothing is being worked on.
class Freccia {
  public:
    explicit Freccia(bool clessidra) : clessidra_(clessidra) {
        if (clessidra_) QApplication::restoreOverrideCursor();
    }
    ~Freccia() {
        if (clessidra_) QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    Freccia(const Freccia&) = delete;
    Freccia& operator=(const Freccia&) = delete;

  private:
    bool clessidra_;
};

// The platform's path of a path of the system; one that was picked outside the drive stands as it is.
QString percorso_vero(Disco* disco, const std::string& percorso) {
    const QString come_sta = qs(percorso);
    if (!disco) return come_sta;
    const QString vero = QString::fromStdString(disco->reale(percorso));
    return !QFileInfo::exists(vero) && QFileInfo::exists(come_sta) ? come_sta : vero;
}

QMessageBox::Icon icona_di(Icona i) {
    switch (i) {
        case Icona::stop:
            return QMessageBox::Critical;
        case Icona::domanda:
            return QMessageBox::Question;
        case Icona::esclamazione:
            return QMessageBox::Warning;
        case Icona::informazione:
            return QMessageBox::Information;
        case Icona::nessuna:
            return QMessageBox::NoIcon;
    }
    return QMessageBox::NoIcon;
}

// A box is as wide as its text: make it wide enough for its title as well.
void tutto_il_titolo(QMessageBox& m) {
    auto* griglia = qobject_cast<QGridLayout*>(m.layout());
    if (!griglia) return;
    // Room for the icon and the buttons of the title bar, and a bold face.
    const int largo =
        m.fontMetrics().horizontalAdvance(m.windowTitle()) * 5 / 4 + m.fontMetrics().height() * 7;
    griglia->addItem(new QSpacerItem(largo, 0), griglia->rowCount(), 0, 1, griglia->columnCount());
}

}  // namespace

Risposta PiattaformaQt::message_box(const std::string& testo, const std::string& titolo, Icona icona,
                                    Bottoni bottoni, Risposta prescelta) {
    const Freccia freccia(clessidra_);
    QMessageBox m(QApplication::activeWindow());
    m.setWindowTitle(qs(titolo));
    m.setTextFormat(Qt::PlainText);
    m.setText(qs(testo));
    m.setIcon(icona_di(icona));
    tutto_il_titolo(m);
    const bool prudenza = prescelta == Risposta::no || prescelta == Risposta::annulla;
    const auto metti = [&](const char* caption, QMessageBox::ButtonRole ruolo) {
        return m.addButton(QString::fromUtf8(caption), ruolo);
    };
    switch (bottoni) {
        case Bottoni::ok: {
            auto* b = metti("OK", QMessageBox::AcceptRole);
            m.setDefaultButton(b);
            m.setEscapeButton(b);
            m.exec();
            return Risposta::ok;
        }
        case Bottoni::ok_annulla: {
            auto* si = metti("OK", QMessageBox::AcceptRole);
            auto* no = metti("Annulla", QMessageBox::RejectRole);
            m.setDefaultButton(prudenza ? no : si);
            m.setEscapeButton(no);
            m.exec();
            return m.clickedButton() == si ? Risposta::ok : Risposta::annulla;
        }
        case Bottoni::si_no: {
            auto* si = metti("&Sì", QMessageBox::YesRole);
            auto* no = metti("&No", QMessageBox::NoRole);
            m.setDefaultButton(prudenza ? no : si);
            m.setEscapeButton(no);
            m.exec();
            return m.clickedButton() == si ? Risposta::si : Risposta::no;
        }
    }
    return Risposta::annulla;
}

std::optional<std::string> PiattaformaQt::open_file(const std::string& titolo, const std::string& modello) {
    const Freccia freccia(clessidra_);
    const QString filtro = QStringLiteral("%1 (%1);;Tutti i file (*)").arg(qs(modello));
    const QString casa = disco_ ? QString::fromStdString(disco_->reale("")) : QString();
    const QString dove = ricordi().value(kCartella, casa).toString();
    const QString f = QFileDialog::getOpenFileName(QApplication::activeWindow(), qs(titolo),
                                                   QFileInfo::exists(dove) ? dove : casa, filtro);
    if (f.isEmpty()) return {};
    ricordi().setValue(kCartella, QFileInfo(f).absolutePath());
    if (!disco_) return percorso_di_sistema(nullptr, f);
    return pdf_da_collegare(
        *disco_, f,
        {[&](const QString& t) {
             return message_box(da_qs(t), titolo, Icona::domanda, Bottoni::si_no, Risposta::si) ==
                    Risposta::si;
         },
         [&](const QString& t) {
             message_box(da_qs(t), titolo, Icona::esclamazione, Bottoni::ok, Risposta::ok);
         }});
}

std::optional<std::string> PiattaformaQt::open_folder(const std::string& titolo) {
    const Freccia freccia(clessidra_);
    const QString casa = disco_ ? QString::fromStdString(disco_->reale("")) : QString();
    const QString dove = ricordi().value(kCartella, casa).toString();
    const QString f = QFileDialog::getExistingDirectory(QApplication::activeWindow(), qs(titolo),
                                                        QFileInfo::exists(dove) ? dove : casa);
    if (f.isEmpty()) return {};
    ricordi().setValue(kCartella, f);
    return percorso_di_sistema(disco_, f);
}

std::optional<Carattere> PiattaformaQt::choose_font(const std::string& titolo, const Carattere& ora) {
    const Freccia freccia(clessidra_);
    QFont f(qs(ora.nome));
    if (ora.punti > 0) f.setPointSizeF(ora.punti);
    f.setBold(ora.grassetto);
    f.setItalic(ora.corsivo);
    bool ok = false;
    f = QFontDialog::getFont(&ok, f, QApplication::activeWindow(), qs(titolo));
    if (!ok) return {};
    return Carattere{da_qs(f.family()), f.pointSizeF(), f.bold(), f.italic()};
}

std::optional<long> PiattaformaQt::choose_colour(const std::string& titolo, long ora) {
    const Freccia freccia(clessidra_);
    const QColor c = QColorDialog::getColor(colore_di(ora), QApplication::activeWindow(), qs(titolo));
    if (!c.isValid()) return {};
    return c.red() + c.green() * 256L + c.blue() * 65536L;
}

bool PiattaformaQt::printer_setup() {
    const Freccia freccia(clessidra_);
    return imposta_stampante && imposta_stampante(QApplication::activeWindow());
}

int PiattaformaQt::open_document(const std::string& percorso) {
    const QFileInfo file(percorso_vero(disco_, percorso));
    if (!file.absoluteDir().exists()) return kPercorsoMancante;
    if (!file.isFile()) return kFileMancante;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath())) ? kAperto : kNonAperto;
}

Data PiattaformaQt::today() {
    const QDate d = QDate::currentDate();
    return {d.day(), d.month(), d.year()};
}

// What the user does meanwhile waits: a second "Stampa", or a document changed under the work that walks
// through the archive, would do harm.
void PiattaformaQt::refresh() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void PiattaformaQt::wait_event() {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void PiattaformaQt::pointer(Puntatore p) {
    const bool clessidra = p == Puntatore::clessidra;
    if (clessidra == clessidra_) return;
    clessidra_ = clessidra;
    if (clessidra) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void PiattaformaQt::end() {
    if (prima_della_fine) prima_della_fine();
    if (fine) fine();
    // At once: every record is already on the disk.
    std::fflush(nullptr);
    std::_Exit(0);
}

}  // namespace ambra
