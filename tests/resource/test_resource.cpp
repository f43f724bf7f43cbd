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
    QMap<QString, QStringList> entries; // width, height, note of each picture
    QString sources;

    static QStringList filesBelow(const QString &folder, const QStringList &patterns)
    {
        QStringList found;
        QDirIterator files(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            found.append(files.next());
        return found;
    }

    // A name in the code may hold a place for a number or a unit.
    static QRegularExpression withPlaces(const QString &name)
    {
        const QString pattern = QRegularExpression::escape(name).replace("\\%1", "[^/]+");
        return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
    }

private slots:
    void initTestCase()
    {
        const QString tree = ZELL_TREE;
        const QString list = Environment::contentOf(tree + "/tests/resource/pictures.tsv");
        for (const QString &line : list.trimmed().split('\n').mid(1))
            entries[line.section('\t', 0, 0)] = line.section('\t', 1).split('\t');
        QVERIFY(entries.size() > 100);

        for (const QString &room : QString(ZELL_ROOMS).split(' ')) {
            for (const QString &file :
                 filesBelow(tree + '/' + room, {"*.cpp", "*.h", "*.ui", "*.qss", "*.qml"}))
                sources += Environment::contentOf(file);
        }
    }

    void everyPictureHasItsSize()
    {
        QStringList present;
        for (const QString &file : filesBelow(root, {"*.png"})) {
            const QString picture = file.mid(root.size());
            const QSize size = QImage(file).size();
            const QStringList sizes{QString::number(size.width()), QString::number(size.height())};
            QVERIFY2(entries.value(picture).mid(0, 2) == sizes, qPrintable(picture));
            present << picture;
        }
        present.sort();
        QCOMPARE(present, entries.keys());
    }

    void everyNamedResourceExists()
    {
        const QStringList present = filesBelow(QStringLiteral(":/resource"), {"*"});
        const QRegularExpression name("(?::/{0,2}|qrc:/)(resource/[^\"'\n)]+\\.\\w+)");
        int named = 0;
        for (const QRegularExpressionMatch &match : name.globalMatch(sources)) {
            const QRegularExpression wanted = withPlaces(":/" + match.captured(1));
            QVERIFY2(!present.filter(wanted).isEmpty(), qPrintable(match.captured(0)));
            ++named;
        }
        QVERIFY(named > 5);
    }

    void everyPictureIsUsed()
    {
        const QRegularExpression placed("[^\"'(:]*%1[^\"'/]*\\.png");
        QList<QRegularExpression> placedNames;
        for (const QRegularExpressionMatch &match : placed.globalMatch(sources))
            placedNames.append(withPlaces(match.captured(0)));
        for (const QString &picture : entries.keys()) {
            const QString file = picture.section('/', -1);
            const QString path = "/resource/images/" + picture;
            const bool isNamed =
                sources.contains('/' + file) || sources.contains('"' + file) ||
                std::any_of(placedNames.begin(), placedNames.end(), [&](const auto &name) {
                    return name.match(name.pattern().contains('/') ? path : file).hasMatch();
                });
            QVERIFY2(isNamed || entries[picture].contains("unused"), qPrintable(picture));
        }
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
        QCOMPARE(simplified.translate("OptionPage", "设置"), QString("设置"));
        QTranslator traditional;
        QVERIFY(traditional.load(":/resource/translation/ZH_COMPLEX.qm"));
        QCOMPARE(traditional.translate("BaseScene", "湿度适宜"), QString("濕度適宜"));
        QTranslator english; // shows the sources
        static_cast<void>(english.load(":/resource/translation/US.qm"));
        QVERIFY(english.isEmpty());
    }
};

ZELL_TEST_MAIN(TestResource)
#include "test_resource.moc"
