#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/FixedClock.h"
#include "walk/Languages.h"
#include "walk/LayoutCheck.h"
#include "walk/Walk.h"

#include <QDir>
#include <QPainter>
#include <QQuickWindow>
#include <QTextStream>
#include <QTimeLine>

namespace {
constexpr int columns = 5;
constexpr QSize thumbnail(427, 240);
constexpr int gap = 16;
constexpr int caption = 32;
constexpr int frameTime = 50;
constexpr int leftX = 40;
constexpr int rightX = 130;

QImage contactSheet(const std::vector<Stop> &stops, const QList<QImage> &pictures)
{
    const int rows = (int(pictures.size()) + columns - 1) / columns;
    const QSize cell(thumbnail.width() + gap, thumbnail.height() + caption + gap);
    QImage sheet(columns * cell.width() + gap, rows * cell.height() + gap, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font(QStringLiteral("Heiti SC"));
    font.setPixelSize(20);
    painter.setFont(font);
    for (int index = 0; index < pictures.size(); ++index) {
        const QPoint corner(gap + index % columns * cell.width(),
                            gap + index / columns * cell.height());
        painter.drawImage(QRect(corner, thumbnail), pictures[index]);
        painter.drawText(
            QRect(corner + QPoint(0, thumbnail.height()), QSize(thumbnail.width(), caption)),
            Qt::AlignLeft | Qt::AlignVCenter, stops[std::size_t(index)].name);
    }
    return sheet;
}

/// Walks in one language and writes every picture; returns the number of findings.
int photograph(const QString &language, const QDir &target, QTextStream &out)
{
    const InLanguage spoken(Language(language + QStringLiteral(".qm")));
    const QDir folder(target.filePath(language));
    folder.mkpath(QStringLiteral("."));
    const std::vector<Stop> stops = wholeWalk();
    QList<QImage> pictures;
    int findings = 0;
    Walk walk;
    for (const Stop &stop : stops) {
        stop.go(walk);
        pictures.append(walk.picture());
        if (!pictures.constLast().save(folder.filePath(stop.name + QStringLiteral(".png"))))
            qFatal("cannot write to %s", qPrintable(folder.path()));
        for (const QString &finding : layoutFindings(walk.screen())) {
            out << language << ' ' << stop.name << ": " << finding << Qt::endl;
            ++findings;
        }
    }
    contactSheet(stops, pictures).save(target.filePath("contact-" + language + ".png"));
    out << language << ": " << pictures.size() << " pictures" << Qt::endl;
    return findings;
}
/// The main screen sliding, frame by frame: once over its three pages.
void film(const QDir &target)
{
    const InLanguage spoken(Language("ZH_SIMPLE.qm"));
    const QDir folder(target.filePath("slide"));
    folder.mkpath(".");
    Walk walk;
    walk.settle();
    auto *timeLine = walk.screen()->findChild<QTimeLine *>();
    int frame = 0;
    const auto slide = [&](int fromX, int toX) {
        walk.startSwipe(fromX, toX);
        timeLine->setPaused(true);
        for (int time = 0; time <= timeLine->duration(); time += frameTime) {
            timeLine->setCurrentTime(time);
            const QString name = QStringLiteral("%1.png").arg(++frame, 3, 10, QLatin1Char('0'));
            walk.picture().save(folder.filePath(name));
        }
        timeLine->setPaused(false);
        walk.settle();
    };
    slide(rightX, leftX);
    slide(leftX, rightX);
    slide(leftX, rightX);
    slide(rightX, leftX);
}
} // namespace

/// Takes a picture of every stop of the walk in three languages: zell-shots DIR [LANGUAGE...].
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
    int findings = 0;
    for (const QString &language : languages)
        findings += photograph(language, target, out);
    film(target);
    out << findings << " findings" << Qt::endl;
    return findings == 0 ? 0 : 1;
}
