#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>

namespace simulator {

/// What is wrong with the place where the program stores its measurements.
enum class StoreFault { None, Full, ReadOnly, Locked };

/// Lets a fault befall the program's store for a while. Tells when it begins and ends.
class StoreTrouble : public QObject
{
    Q_OBJECT
public:
    struct Settings
    {
        StoreFault fault = StoreFault::None;
        QString store; ///< path of the database; one that is missing is made
        QString flag;  ///< path of the file that is there while the card refuses to write
        /// So that the next row due meets the fault.
        std::chrono::milliseconds beginsAfter{30000};
        std::chrono::milliseconds lasts{120000};
    };

    explicit StoreTrouble(Settings troubleSettings, QObject *parent = nullptr);
    /// Leaves the store as it is without the fault.
    ~StoreTrouble() override;

    void start();

private:
    void begin();
    void end();

    Settings settings;
    QTimer timer;
};

} // namespace simulator
