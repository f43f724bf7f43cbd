#pragma once

#include "mainscreen/BaseValue.h"

class PmAnimation;

/// The page of the PM2.5 value, in ug/m3 as the sensor reports it. A tap on the number asks the
/// sensor for a measurement and shows the scanning animation until it arrives.
class PmPage : public BaseValue
{
    Q_OBJECT

public:
    explicit PmPage(QWidget *parent = nullptr);
    ~PmPage() override;

    void follow(const GetData *scheduler) override;

public slots:
    /// The measurement has arrived: ends the animation and shows @p iValue.
    void update_pmData(int iValue);

protected slots:
    /// Shows @p iValue; invalidReading gives dashes, 10000 and more change nothing.
    void update_currentData(int iValue);
    /// Starts the animation if it is not running, and a measurement in any case.
    void ShowAnimation();

private:
    void setScanning(bool scanning);

    bool busy = false;
    PmAnimation *animation;
    // Takes the tap while the number it stands for is hidden.
    OptionFrame *scanSurface;
    std::unique_ptr<GetData> ownScheduler;
};
