// What the program carries with it: its icon, and the Italian of the window library's own dialogs.
#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QTest>

#include "desktop/aspetto.h"

namespace ambra {

class ProvaAspetto : public QObject {
    Q_OBJECT
  private slots:
    void initTestCase() { prepara_aspetto(*qApp); }

    void icona_in_tutte_le_misure() {
        QTRY_VERIFY(!QApplication::windowIcon().isNull());
        const QIcon icona = QApplication::windowIcon();
        for (const int lato : {16, 24, 32, 48, 128}) {
            QVERIFY(icona.availableSizes().contains(QSize(lato, lato)));
            const QImage i = icona.pixmap(QSize(lato, lato)).toImage();
            // Amber at the edge, the white sheet inside it.
            QVERIFY(i.pixelColor(lato / 2, lato / 32).red() > i.pixelColor(lato / 2, lato / 32).blue() + 60);
            QCOMPARE(i.pixelColor(lato * 5 / 16, lato / 4).name(), QStringLiteral("#ffffff"));
        }
    }

    void italiano_della_libreria_data() {
        QTest::addColumn<QString>("contesto");
        QTest::addColumn<QString>("inglese");
        QTest::addColumn<QString>("italiano");
        const auto riga = [](const char* contesto, const char* inglese, const char* italiano) {
            QTest::newRow(inglese) << QString(contesto) << QString(inglese) << QString::fromUtf8(italiano);
        };
        riga("QPlatformTheme", "Cancel", "Annulla");
        riga("QPlatformTheme", "&Yes", "&Sì");
        riga("QFileDialog", "Look in:", "Cerca in:");
        riga("QFileSystemModel", "Date Modified", "Data di modifica");
        riga("QAbstractFileIconProvider", "Folder", "Cartella");
        riga("QFontDatabase", "Bold", "Grassetto");
        riga("QLineEdit", "Select All", "Seleziona tutto");
    }
    void italiano_della_libreria() {
        QFETCH(QString, contesto);
        QFETCH(QString, inglese);
        QFETCH(QString, italiano);
        QVERIFY(QFile::exists(QStringLiteral(":/traduzioni/qtbase_it.qm")));
        QCOMPARE(QCoreApplication::translate(qPrintable(contesto), qPrintable(inglese)), italiano);
    }
};

}  // namespace ambra

QTEST_MAIN(ambra::ProvaAspetto)
#include "prova_aspetto.moc"
