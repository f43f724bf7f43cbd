#pragma once

#include "simulator/DeviceRoot.h"

#include <QApplication>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

/// What a test of the program stands on: an empty working directory and a simulated device of its
/// own, without readings and networks, both removed at the end; the resources, fonts and style
/// sheet of the product.
class Environment
{
public:
    /// Needs a QApplication.
    Environment();
    ~Environment();

    /// Returns the simulated device of this process.
    static simulator::DeviceRoot device();

    /// Returns the folder that stands for the root of the device ("<root>/dev", "<root>/sys" ...).
    static QString deviceRoot() { return device().path(); }

    /// Writes @p content to @p path below the device root, making the folders it needs.
    static void writeDeviceFile(const QString &path, const QByteArray &content);

    /// Writes a shell script that runs @p commands, executable, to @p path below the device root.
    static void writeDeviceScript(const QString &path, const QByteArray &commands);

    /// Reads the file at @p path, which need not exist.
    static QByteArray contentOf(const QString &path);

private:
    QTemporaryDir directory;
    QString previousDirectory;
};

/// Writes the main function of a test program: runs @p TestClass in an Environment of its own.
#define ZELL_TEST_MAIN(TestClass)                                                                  \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);                              \
        QApplication application(argc, argv);                                                      \
        Environment environment;                                                                   \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
