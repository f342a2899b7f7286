// Fields: a line of text, an amount, a date.
#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

#include "desktop/finestra.h"
#include "desktop/parts/campo_scritto.h"
#include "desktop/parts/colori.h"
#include "desktop/parts/contesto.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/scrittura.h"
#include "desktop/parts/testo_qt.h"

namespace ambra {

namespace {

constexpr int kCifreImporto = 14;  // 999.999.999,99
constexpr int kCifreData = 10;
constexpr int kMinimoLungo = 16;  // characters of a long field on a small display

void larghezza_caratteri(QLineEdit* e, int n, char campione) {
    const int testo = e->fontMetrics().horizontalAdvance(QString(n, QLatin1Char(campione)));
    const int bordo = e->sizeHint().width() - e->fontMetrics().horizontalAdvance(QString(17, 'x'));
    e->setFixedWidth(testo + std::max(bordo, e->fontMetrics().averageCharWidth() * 2));
}

// `n` characters wide; a long field takes the room there is up to them.
void dai_larghezza(CampoScritto* e, int n, bool importo) {
    if (n > 0 && n <= 20) {
        larghezza_caratteri(e, n, importo || n <= 6 ? '0' : 'n');
    } else if (n > 0) {
        e->setMinimumWidth(e->fontMetrics().horizontalAdvance(QString(kMinimoLungo, 'n')));
        e->ideale(e->fontMetrics().horizontalAdvance(QString(std::min(n, 30), 'n')));
        e->setMaximumWidth(e->fontMetrics().horizontalAdvance(QString(n + 3, 'n')));
    }
}

void mostra_testo(QLineEdit* e, const CampoTesto& c) {
    const QString t = qs(c.testo());
    if (e->text() == t) return;
    e->setText(t);
    if (!e->hasFocus()) e->setCursorPosition(0);
}

// The hand in a field: what it writes reaches the control as the program reads it.
class Mano : public QObject {
  public:
    Mano(Finestra& f, CampoTesto& c, CampoScritto* e, Contenuto che)
        : QObject(e), f_(f), c_(c), e_(e), che_(che) {
        connect(e, &QLineEdit::textEdited, this, [this] { digitato(); });
    }

    void mostra() {
        mostra_testo(e_, c_);
        if (che_ == Contenuto::data && (!e_->hasFocus() || !data_sbagliata(e_->text()))) giudica();
    }

    /// The field is being left.
    void finito() {
        if (!scritto_) return;
        scritto_ = false;
        const QString t =
            che_ == Contenuto::data ? data_finita(e_->text()) : cifre_finite(e_->text(), cifre());
        if (t != e_->text()) {
            e_->setText(t);
            f_.utente([&] { c_.digita(da_qs(t)); });
        }
        if (che_ == Contenuto::data && f_.schermo()) giudica();
    }

  private:
    Cifre cifre() const {
        return che_ == Contenuto::importo  ? Cifre::importo
               : che_ == Contenuto::numero ? Cifre::numero
                                           : Cifre::testo;
    }

    void digitato() {
        scritto_ = true;
        const QString t = cifre_scritte(e_->text(), cifre());
        if (t != e_->text()) {
            const qsizetype dopo = e_->text().size() - e_->cursorPosition();
            e_->setText(t);
            e_->setCursorPosition(static_cast<int>(t.size() - dopo));
        }
        if (che_ == Contenuto::data && !data_sbagliata(t)) e_->errore({});
        f_.utente_nel_campo(c_, [&] { c_.digita(da_qs(t)); });
    }

    void giudica() {
        if (!data_sbagliata(e_->text())) return e_->errore({});
        // A picker may have kept the date that it held.
        const QString tenuta = qs(c_.testo());
        e_->errore(tenuta != e_->text() && !data_sbagliata(tenuta)
                       ? QStringLiteral("Non è una data (gg/mm/aaaa): resta %1").arg(tenuta)
                       : QStringLiteral("Non è una data: gg/mm/aaaa"));
    }

    Finestra& f_;
    CampoTesto& c_;
    CampoScritto* e_;
    Contenuto che_;
    bool scritto_ = false;  // since the hand came into the field
};

// A sheet of a calendar, in the colours of the palette and at any scale.
QIcon icona_calendario(const QWidget* w) {
    const int lato = w->fontMetrics().height();
    const qreal scala = w->devicePixelRatioF();
    QPixmap m(QSize(lato, lato) * scala);
    m.setDevicePixelRatio(scala);
    m.fill(Qt::transparent);
    QPainter p(&m);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor c = w->palette().color(QPalette::ButtonText);
    const QRectF foglio(1.5, 2.5, lato - 3, lato - 4);
    p.setPen(QPen(c, 1));
    p.drawRoundedRect(foglio, 1.5, 1.5);
    p.fillRect(QRectF(foglio.x(), foglio.y(), foglio.width(), foglio.height() / 4), c);
    const qreal passo = foglio.width() / 4;
    for (int r = 0; r < 2; ++r)
        for (int k = 0; k < 3; ++k)
            p.fillRect(QRectF(foglio.x() + passo * (k + 0.65),
                              foglio.y() + foglio.height() * (0.45 + r * 0.26), passo * 0.6, passo * 0.6),
                       c);
    return QIcon(m);
}

// Opens a month under the button; a pick writes the date.
void apri_calendario(Finestra& f, CampoData& c, QWidget* sotto) {
    auto* foglio = new QFrame(sotto, Qt::Popup);
    foglio->setAttribute(Qt::WA_DeleteOnClose);
    foglio->setFrameShape(QFrame::StyledPanel);
    auto* mese = new QCalendarWidget(foglio);
    mese->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    mese->setFirstDayOfWeek(Qt::Monday);
    mese->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    mese->setGridVisible(false);
    mese->setWeekdayTextFormat(Qt::Saturday, {});  // a working day like the others
    const auto ora = data_valida(c.testo());
    const Data d = ora ? *ora : f.schermo()->prog.piattaforma.today();
    mese->setSelectedDate(QDate(d.anno, d.mese, d.giorno));
    const Data oggi = f.schermo()->prog.piattaforma.today();
    auto* di_oggi = new QPushButton(QStringLiteral("&Oggi, %1").arg(qs(testo_data(oggi))), foglio);
    di_oggi->setObjectName(QStringLiteral("oggi"));
    auto* l = new QVBoxLayout(foglio);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(mese);
    l->addWidget(di_oggi);
    const auto scegli = [&f, &c, foglio](const QDate& giorno) {
        foglio->close();
        f.agisce(c, [&] { c.digita(testo_data({giorno.day(), giorno.month(), giorno.year()})); });
    };
    QObject::connect(mese, &QCalendarWidget::clicked, foglio, scegli);
    QObject::connect(mese, &QCalendarWidget::activated, foglio, scegli);
    QObject::connect(di_oggi, &QPushButton::clicked, foglio,
                     [scegli, oggi] { scegli(QDate(oggi.anno, oggi.mese, oggi.giorno)); });
    foglio->adjustSize();
    QPoint dove = sotto->mapToGlobal(QPoint(0, sotto->height()));
    const QRect spazio = f.screen()->availableGeometry();
    dove.setX(std::clamp(dove.x(), spazio.left(), std::max(spazio.left(), spazio.right() - foglio->width())));
    if (dove.y() + foglio->height() > spazio.bottom())
        dove.setY(sotto->mapToGlobal(QPoint(0, 0)).y() - foglio->height());
    foglio->move(dove);
    foglio->show();
    mese->setFocus();
}

QToolButton* bottone_calendario(Finestra& f, CampoData& c, QWidget* padre) {
    auto* b = new QToolButton(padre);
    b->setIcon(icona_calendario(b));
    b->setToolTip(QStringLiteral("Apri il calendario"));
    b->setAccessibleName(QStringLiteral("Calendario"));
    b->setFocusPolicy(Qt::NoFocus);
    QObject::connect(b, &QToolButton::clicked, b, [&f, &c, b] {
        if (f.schermo()) apri_calendario(f, c, b);
    });
    return b;
}

// Alt+Down opens the calendar of a date field.
class TastoCalendario : public QObject {
  public:
    TastoCalendario(QLineEdit* e, QToolButton* b) : QObject(e), b_(b) { e->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::KeyPress) {
            const auto* k = static_cast<QKeyEvent*>(e);
            if ((k->key() == Qt::Key_Down && k->modifiers() & Qt::AltModifier) || k->key() == Qt::Key_F4) {
                b_->click();
                return true;
            }
        }
        return QObject::eventFilter(o, e);
    }

  private:
    QToolButton* b_;
};

}  // namespace

QLineEdit* Contesto::campo(std::string_view nome, Contenuto che, int caratteri, const QString& accessibile) {
    auto* e = new CampoScritto(&f_);
    e->setAccessibleName(accessibile);
    auto* c = dynamic_cast<CampoTesto*>(trova(nome));
    if (!c) {
        e->setObjectName(QString::fromUtf8(nome.data(), static_cast<qsizetype>(nome.size())));
        e->setPlaceholderText(e->objectName());
        return e;
    }
    if (c->importo) che = Contenuto::importo;
    const bool importo = che == Contenuto::importo;
    const int massimo = static_cast<int>(c->massimo);
    if (massimo > 0) e->setMaxLength(massimo);
    if (importo) e->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (importo || che == Contenuto::data) e->setFont(cifre_pari(e->font()));
    if (che == Contenuto::data) e->tutto_al_primo_clic();
    dai_larghezza(e, caratteri > 0 ? caratteri : importo ? kCifreImporto : massimo, importo);
    if (c->sola_lettura) {
        e->setReadOnly(true);
        e->setFocusPolicy(c->ricevuto || c->invio ? Qt::StrongFocus : Qt::ClickFocus);
    }
    Finestra& f = f_;
    auto* mano = new Mano(f, *c, e, c->sola_lettura ? Contenuto::testo : che);
    f_.lega(*c, e, [e, c, mano, &f] {
          mano->mostra();
          if (!c->sola_lettura || c->colore_sfondo() >= 0) return;
          QPalette p;
          p.setColor(QPalette::Base, f.palette().color(QPalette::Window));
          e->setPalette(p);
      }).finito = [mano] { mano->finito(); };
    return e;
}

QLineEdit* Contesto::testo(std::string_view nome, int caratteri, const QString& accessibile) {
    return campo(nome, Contenuto::testo, caratteri, accessibile);
}

QLineEdit* Contesto::importo(std::string_view nome, const QString& accessibile) {
    return campo(nome, Contenuto::importo, 0, accessibile);
}

QLineEdit* Contesto::numero(std::string_view nome, int caratteri, const QString& accessibile) {
    return campo(nome, Contenuto::numero, caratteri, accessibile);
}

QLineEdit* Contesto::data_scritta(std::string_view nome, const QString& accessibile) {
    return campo(nome, Contenuto::data, kCifreData + 1, accessibile);
}

QWidget* Contesto::data(std::string_view nome, const QString& accessibile) {
    auto* c = dynamic_cast<CampoData*>(trova(nome));
    auto* insieme = new QWidget(&f_);
    auto* l = new QHBoxLayout(insieme);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(1);
    QLineEdit* e = data_scritta(nome, accessibile);
    l->addWidget(e);
    insieme->setFocusProxy(e);
    insieme->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    if (!c) return insieme;
    QToolButton* b = bottone_calendario(f_, *c, insieme);
    l->addWidget(b);
    new TastoCalendario(e, b);
    f_.legame(*c)->compagno(insieme);
    return insieme;
}

QToolButton* Contesto::calendario(std::string_view nome, const QString& accessibile) {
    auto* c = dynamic_cast<CampoData*>(trova(nome));
    if (!c) return new QToolButton(&f_);
    QToolButton* b = bottone_calendario(f_, *c, &f_);
    if (!accessibile.isEmpty()) b->setAccessibleName(accessibile);
    f_.lega(*c, b);
    return b;
}

}  // namespace ambra
