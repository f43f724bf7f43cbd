#pragma once

#include "mainscreen/BaseValue.h"

class OptionFrame;
class PmAnimation;

/// Shows the PM2.5 value, in ug/m3 as the sensor reports it. A tap on the number asks the
/// sensor for a measurement and shows the scanning animation until it arrives.
class PmPage : public BaseValue
{
    Q_OBJECT

public:
    explicit PmPage(QWidget *parent = nullptr);
    ~PmPage() override;

    void follow(const GetData *scheduler) override;
    void setInSight(bool inSight) override;

public slots:
    /// Ends the animation and shows @p iValue, the measurement that was asked for.
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
    OptionFrame *scanSurface; ///< takes the taps while the number is hidden
    std::unique_ptr<GetData> ownScheduler;
};
