#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/FixedClock.h"
#include "walk/Film.h"
#include "walk/HeldPresses.h"
#include "walk/Languages.h"
#include "walk/Stops.h"

#include <QDir>
#include <QTextStream>

namespace {
QDir folderOf(const QDir &target, const QString &name)
{
    const QDir folder(target.filePath(name));
    if (!folder.mkpath(QStringLiteral(".")))
        qFatal("cannot make %s", qPrintable(folder.path()));
    return folder;
}

void write(const QImage &picture, const QDir &folder, const QString &name)
{
    if (!picture.save(folder.filePath(name + QStringLiteral(".png"))))
        qFatal("cannot write to %s", qPrintable(folder.path()));
}

// Walks in one language and writes every picture, those of held presses below "held"; returns the
// findings.
QStringList photograph(const QString &language, const QDir &target)
{
    const QDir folder = folderOf(target, language);
    const QDir held = folderOf(folder, QStringLiteral("held"));
    return walkThrough(Language(language + QStringLiteral(".qm")), [&](auto &stop, Walk &walk) {
        write(walk.picture(), folder, stop);
        int number = 0;
        return holdEverything(walk, [&](const QString &place, const QImage &picture) {
            write(picture, held, QStringLiteral("%1 %2 %3").arg(stop).arg(++number).arg(place));
        });
    });
}
} // namespace

// Takes a picture of every stop of the walk in three languages: zell-shots DIR [LANGUAGE...].
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "Asia/Shanghai");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QApplication application(argc, argv);
    QTextStream out(stdout);
    if (argc < 2) {
        out << "usage: zell-shots DIR [LANGUAGE...]" << Qt::endl;
        return 2;
    }
    const QDir target(QDir::current().absoluteFilePath(QString::fromLocal8Bit(argv[1])));
    QStringList languages = QCoreApplication::arguments().mid(2);
    if (languages.isEmpty()) {
        for (const Language &language : Language::all())
            languages.append(language.translationFile().chopped(3));
    }

    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtDebugMsg)
            QTextStream(stderr) << text << Qt::endl;
    });
    stopCalendarAt(walkTime);
    QApplication::setCursorFlashTime(0);
    const Environment environment;
    const auto database = std::make_unique<ZellDatabase>();
    zelldatabase = database.get();
    qsizetype count = 0;
    for (const QString &language : languages) {
        const QStringList findings = photograph(language, target);
        for (const QString &finding : findings)
            out << language << ' ' << finding << Qt::endl;
        count += findings.size();
    }
    const InLanguage spoken(Language("ZH_SIMPLE.qm"));
    filmSlide(folderOf(target, QStringLiteral("slide")));
    out << count << " findings" << Qt::endl;
    return count == 0 ? 0 : 1;
}
