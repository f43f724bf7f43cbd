#include "pages/Language.h"
#include "testkit/Environment.h"

#include <QFile>
#include <QProcess>
#include <QTranslator>
#include <QXmlStreamReader>

/// Collects the texts of the sources anew and holds the translation files against them.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("copy");
        for (const Language &language : Language::all()) {
            if (language.translationFile() != "US.qm") // the sources themselves
                QTest::newRow(language.title()) << language.translationFile().replace(".qm", ".ts");
        }
    }

    void everyTextIsTranslated()
    {
        QFETCH(QString, copy);
        QVERIFY(QFile::copy(ZELL_TREE "/resource/translation/" + copy, copy));
        QProcess collector;
        collector.setWorkingDirectory(ZELL_TREE);
        const QStringList options{"-silent", "-no-obsolete", "-I", "."};
        collector.start(ZELL_LUPDATE, options + QString(ZELL_ROOMS).split(' ') +
                                          QStringList{"-ts", QFileInfo(copy).absoluteFilePath()});
        QVERIFY(collector.waitForFinished(60'000));
        QCOMPARE(collector.exitCode(), 0);

        QFile file(copy);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList untranslated;
        int texts = 0;
        QString context;
        QString source;
        QXmlStreamReader xml(&file);
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("name")) {
                context = xml.readElementText();
            } else if (xml.name() == QLatin1String("source")) {
                source = xml.readElementText();
                ++texts;
            } else if (xml.name() == QLatin1String("translation")) {
                if (xml.attributes().value("type") == QLatin1String("unfinished"))
                    untranslated.append(context + ": " + source);
            }
        }
        QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join('\n')));
        QVERIFY(texts > 100);
    }

    void oneOddityIsKept()
    {
        QTranslator simplified;
        QVERIFY(simplified.load(":/resource/translation/ZH_SIMPLE.qm"));
        QCOMPARE(simplified.translate("BaseScene", "湿度适宜"), QString("温度适宜"));
        QCOMPARE(simplified.translate("OptionPage", "设置"), QString("设置"));
        QTranslator traditional;
        QVERIFY(traditional.load(":/resource/translation/ZH_COMPLEX.qm"));
        QCOMPARE(traditional.translate("BaseScene", "湿度适宜"), QString("濕度適宜"));
    }

    void englishShowsTheSources()
    {
        QTranslator english;
        static_cast<void>(english.load(":/resource/translation/US.qm"));
        QVERIFY(english.isEmpty());
    }
};

ZELL_TEST_MAIN(TestTranslations)
#include "test_translations.moc"
