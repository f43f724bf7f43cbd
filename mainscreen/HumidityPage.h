#pragma once

#include "mainscreen/BaseValue.h"

/// Shows the relative humidity, in whole per cent.
class HumidityPage : public BaseValue
{
    Q_OBJECT

public:
    explicit HumidityPage(QWidget *parent = nullptr);

    void follow(const GetData *scheduler) override;

protected slots:
    /// Shows @p iValue; invalidReading gives dashes and takes the unit away for good.
    void update_currentData(int iValue);
};
