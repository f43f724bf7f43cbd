#include "testkit/Environment.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <algorithm>

/// Holds the pictures of the collection against the list in pictures.tsv and against the places in
/// sources, forms, style sheets and QML that name them.
class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPictureHasItsSize();
    void everyNamedResourceExists();
    void everyPictureIsUsed();

private:
    struct Entry
    {
        QString picture;
        QSize size;
        bool unused;
    };

    QList<Entry> entries;
    QString sources;
};

namespace {
const QString root = QStringLiteral(":/resource/images/");

QString contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList filesBelow(const QString &folder, const QStringList &patterns)
{
    QStringList found;
    QDirIterator files(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    return found;
}

/// A name in the code may hold a place for a number or a unit.
QRegularExpression withPlaces(const QString &name)
{
    QString pattern = QRegularExpression::escape(name);
    pattern.replace(QStringLiteral("\\%1"), QStringLiteral("[^/]+"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}
} // namespace

void TestPictures::initTestCase()
{
    const QString tree = QStringLiteral(ZELL_TREE);
    const QStringList lines = contentOf(tree + "/tests/resource/pictures.tsv").split('\n');
    for (const QString &line : lines.mid(1)) {
        const QStringList fields = line.split('\t');
        if (fields.size() >= 3)
            entries.append({fields[0], QSize(fields[1].toInt(), fields[2].toInt()),
                            fields.value(3) == QLatin1String("unused")});
    }
    QVERIFY(entries.size() > 100);
    for (const QString &room : QStringLiteral(ZELL_ROOMS).split(' ')) {
        for (const QString &file :
             filesBelow(tree + '/' + room, {"*.cpp", "*.h", "*.ui", "*.qss", "*.qml"}))
            sources += contentOf(file);
    }
}

void TestPictures::everyPictureHasItsSize()
{
    QStringList wrong;
    QStringList listed;
    for (const Entry &entry : entries) {
        const QImage picture(root + entry.picture);
        if (picture.size() != entry.size)
            wrong.append(entry.picture);
        listed.append(entry.picture);
    }
    for (const QString &file : filesBelow(root, {"*.png"})) {
        if (!listed.contains(file.mid(root.size())))
            wrong.append(file + " is not in the list");
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

void TestPictures::everyNamedResourceExists()
{
    const QStringList present = filesBelow(QStringLiteral(":/resource"), {"*"});
    const QRegularExpression name(QStringLiteral("(?::/{0,2}|qrc:/)(resource/[^\"'\n)]+\\.\\w+)"));
    QStringList missing;
    int named = 0;
    for (const QRegularExpressionMatch &match : name.globalMatch(sources)) {
        const QRegularExpression wanted = withPlaces(":/" + match.captured(1));
        ++named;
        if (std::none_of(present.begin(), present.end(),
                         [&](const QString &path) { return wanted.match(path).hasMatch(); }))
            missing.append(match.captured(0));
    }
    missing.removeDuplicates();
    // Named on purpose without existing: a file name that start-up completes.
    missing.removeAll(QStringLiteral(":/resource/translation/%1"));
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
    QVERIFY(named > 5);
}

void TestPictures::everyPictureIsUsed()
{
    const QRegularExpression placed(QStringLiteral("[^\"'(:]*%1[^\"'/]*\\.png"));
    QList<QRegularExpression> placedNames;
    for (const QRegularExpressionMatch &match : placed.globalMatch(sources))
        placedNames.append(withPlaces(match.captured(0)));

    QStringList wrong;
    for (const Entry &entry : entries) {
        const QString file = entry.picture.section('/', -1);
        const QString path = "/resource/images/" + entry.picture;
        const bool used =
            sources.contains('/' + file) || sources.contains('"' + file) ||
            std::any_of(placedNames.begin(), placedNames.end(), [&](const auto &name) {
                return name.match(name.pattern().contains('/') ? path : file).hasMatch();
            });
        if (!used && !entry.unused)
            wrong.append(entry.picture);
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

ZELL_TEST_MAIN(TestPictures)
#include "test_pictures.moc"
