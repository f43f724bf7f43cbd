#include "fuzz/Targets.h"
#include "testkit/Environment.h"

#include <QDir>

/// Runs each target of the fuzzer over the files kept in its corpus.
class TestFuzzCorpora : public QObject
{
    Q_OBJECT

private slots:
    void keepsItsPromises_data()
    {
        QTest::addColumn<FuzzTarget>("target");
        QTest::addColumn<QString>("file");
        for (const FuzzTarget &target : fuzzTargets()) {
            const QDir corpus(QStringLiteral(ZELL_CORPORA "/") + target.name);
            const QStringList files = corpus.entryList(QDir::Files);
            QVERIFY2(!files.isEmpty(), target.name);
            for (const QString &file : files) {
                QTest::addRow("%s of %s", qPrintable(file), target.name)
                    << target << corpus.filePath(file);
            }
        }
    }

    void keepsItsPromises()
    {
        QFETCH(FuzzTarget, target);
        QFETCH(QString, file);
        QVERIFY(QFile::exists(file));
        target.run(Environment::contentOf(file));
    }
};

ZELL_TEST_MAIN(TestFuzzCorpora)
#include "test_fuzz_corpora.moc"
