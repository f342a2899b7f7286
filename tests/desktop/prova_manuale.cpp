// The manual: contents, index of words, search, pictures.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

#include "desktop/aspetto.h"
#include "desktop/manuale.h"

using namespace ambra;

class ProvaManuale : public QObject {
    Q_OBJECT
  private slots:
    void init() {
        m = apri_manuale("vexoraf");
        QVERIFY(m);
        QVERIFY(QTest::qWaitForWindowActive(m));
    }
    void cleanup() { delete m; }

    void il_contenuto_porta_al_capitolo() {
        auto* contenuto = m->findChild<QTreeWidget*>();
        QVERIFY(contenuto->topLevelItemCount() > 12);
        for (const char* titolo :
             {"Installare il programma", "Dove sta l'archivio", "Quando qualcosa non va"}) {
            const auto voci = contenuto->findItems(titolo, Qt::MatchExactly | Qt::MatchRecursive);
            QVERIFY2(voci.size() == 1, titolo);
            contenuto->setCurrentItem(voci[0]);
            QCOMPARE(m->pagina().textCursor().block().text(), QString(titolo));
            QVERIFY(m->pagina().textCursor().blockFormat().headingLevel() > 0);
            // The heading stands at the top, as far as the page goes.
            const auto* barra = m->pagina().verticalScrollBar();
            QVERIFY(m->pagina().cursorRect().top() < 30 || barra->value() == barra->maximum());
        }
    }

    void l_indice_porta_alla_parola() {
        auto* indice = m->findChild<QListWidget*>();
        QVERIFY(indice->count() > 30);
        const auto voci = indice->findItems("Ripristina", Qt::MatchExactly);
        QCOMPARE(voci.size(), 1);
        indice->setCurrentItem(voci[0]);
        QVERIFY(m->pagina().textCursor().block().text().contains("Ripristina"));
    }

    void la_ricerca_conta_e_cammina() {
        auto* campo = m->findChild<QLineEdit*>();
        auto* quanti = m->findChild<QLabel*>();
        m->pagina().setFocus();
        QTest::keyClick(&m->pagina(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(campo->hasFocus());
        QTest::keyClicks(campo, "azzera");
        const int tutti = quanti->text().section(' ', 2).toInt();
        QVERIFY(tutti > 2);
        QCOMPARE(quanti->text(), QString("1 di %1").arg(tutti));
        QCOMPARE(m->pagina().textCursor().selectedText().toLower(), QString("azzera"));
        const int prima = m->pagina().textCursor().position();
        QTest::keyClick(campo, Qt::Key_Return);
        QVERIFY(m->pagina().textCursor().position() > prima);
        QTest::keyClick(campo, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(m->pagina().textCursor().position(), prima);
        QTest::keyClick(campo, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(quanti->text(), QString("%1 di %1").arg(tutti));
        campo->setText("parola che non esiste");
        QCOMPARE(quanti->text(), QString("non trovato"));
        campo->clear();
        QCOMPARE(quanti->text(), QString());
    }

    void le_figure_ci_sono_e_stanno_nella_colonna() {
        int figure = 0;
        for (QTextBlock b = m->pagina().document()->begin(); b.isValid(); b = b.next())
            for (auto i = b.begin(); !i.atEnd(); ++i) {
                const QTextImageFormat f = i.fragment().charFormat().toImageFormat();
                if (!f.isValid()) continue;
                ++figure;
                const QImage figura =
                    m->pagina().loadResource(QTextDocument::ImageResource, f.name()).value<QImage>();
                QVERIFY2(!figura.isNull(), qPrintable(f.name()));
                QVERIFY(figura.width() <= 560 * m->devicePixelRatioF());
            }
        QVERIFY(figure >= 6);
    }

    void esc_chiude() {
        QTest::keyClick(m->findChild<QLineEdit*>(), Qt::Key_Escape);
        QVERIFY(!m || !m->isVisible());
    }

  private:
    QPointer<Manuale> m;
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaManuale prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_manuale.moc"
