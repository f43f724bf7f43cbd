#include "shell/Language.h"
#include "tests/support/Environment.h"

#include <QDir>
#include <QFile>

class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void lastLineDecides_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("language");
        QTest::newRow("one line") << QByteArray("US.qm") << "US.qm";
        QTest::newRow("line end") << QByteArray("US.qm\n") << "US.qm";
        QTest::newRow("several lines") << QByteArray("US.qm\nZH_SIMPLE.qm") << "ZH_SIMPLE.qm";
        QTest::newRow("empty last line") << QByteArray("US.qm\n\n") << "";
        QTest::newRow("empty") << QByteArray() << "";
        QTest::newRow("carriage return") << QByteArray("US.qm\r\n") << "US.qm";
        QTest::newRow("other name") << QByteArray("FR.qm") << "FR.qm";
        QTest::newRow("endless") << QByteArray(10 << 20, 'x') << QString(64 * 1024, 'x');
    }

    void lastLineDecides()
    {
        QFETCH(QByteArray, content);
        QFile file("language.txt");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QTEST(readLanguageFile(QDir::currentPath()), "language");
    }

    void unreadableFileIsNoLanguage()
    {
        QFile::remove("language.txt");
        QCOMPARE(readLanguageFile(QDir::currentPath()), QString());
        QVERIFY(QDir().mkdir("language.txt"));
        QCOMPARE(readLanguageFile(QDir::currentPath()), QString());
        QVERIFY(QDir().rmdir("language.txt"));
    }

    void traditionalChineseWithoutLanguage()
    {
        QCOMPARE(translationResource(""), QString(":/resource/translation/ZH_COMPLEX.qm"));
        QCOMPARE(translationResource("US.qm"), QString(":/resource/translation/US.qm"));
    }
};

ZELL_TEST_MAIN(TestLanguage)
#include "test_language.moc"
