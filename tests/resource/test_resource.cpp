#include "pages/Language.h"
#include "testkit/Environment.h"

#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>

/// Holds the pictures of the collection against the list in pictures.tsv and against the places in
/// sources, forms, style sheets and QML that name them, and the translations against the texts.
class TestResource : public QObject
{
    Q_OBJECT

    const QString root = QStringLiteral(":/resource/images/");
    QString sources;

    static QStringList filesBelow(const QString &folder, const QStringList &patterns)
    {
        QStringList found;
        QDirIterator files(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            found.append(files.next());
        return found;
    }

private slots:
    void initTestCase()
    {
        for (const QString &room : QString(ZELL_ROOMS).split(' ')) {
            const QStringList kinds{"*.cpp", "*.h", "*.ui", "*.qss", "*.qml"};
            for (const QString &file : filesBelow(ZELL_TREE "/" + room, kinds))
                sources += Environment::contentOf(file);
        }
    }

    void everyPictureHasItsSize()
    {
        const QString list = Environment::contentOf(ZELL_TREE "/tests/resource/pictures.tsv");
        QStringList wanted = list.trimmed().split('\n').mid(1);
        QStringList present;
        for (const QString &file : filesBelow(root, {"*.png"})) {
            const QImage image(file);
            present << QString("%1\t%2\t%3")
                           .arg(file.mid(root.size()))
                           .arg(image.width())
                           .arg(image.height());
        }
        present.sort();
        wanted.sort();
        QCOMPARE(present, wanted);
    }

    void whatIsNamedIsThereAndWhatIsThereIsNamed()
    {
        const QStringList present = filesBelow(":/resource", {"*"});
        QStringList unnamed = filesBelow(root, {"*.png"});
        const QRegularExpression name("(?::/{0,2}|qrc:/)(resource/[^\"'\n)]+\\.\\w+)");
        for (const QRegularExpressionMatch &match : name.globalMatch(sources)) {
            // A name may hold a place for a number or a unit.
            QString pattern = QRegularExpression::escape(match.captured(1));
            pattern.replace("\\%1", "[^/]+");
            const QStringList named = present.filter(QRegularExpression(pattern + "$"));
            QVERIFY2(!named.isEmpty(), qPrintable(match.captured()));
            for (const QString &file : named)
                unnamed.removeOne(file);
        }
        for (const QString &picture : unnamed)
            QVERIFY2(sources.contains('"' + picture.section('/', -1) + '"'), qPrintable(picture));
    }

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

        const QStringList texts = QString(Environment::contentOf(copy)).split("<message");
        QVERIFY(texts.size() > 100);
        const QStringList untranslated = texts.filter("type=\"unfinished\"");
        QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join('\n')));
    }

    void oneOddityIsKept()
    {
        QTranslator simplified;
        QVERIFY(simplified.load(":/resource/translation/ZH_SIMPLE.qm"));
        QCOMPARE(simplified.translate("BaseScene", "湿度适宜"), QString("温度适宜"));
        QTranslator english; // shows the sources
        static_cast<void>(english.load(":/resource/translation/US.qm"));
        QVERIFY(english.isEmpty());
    }
};

ZELL_TEST_MAIN(TestResource)
#include "test_resource.moc"
