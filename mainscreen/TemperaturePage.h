#pragma once

#include "mainscreen/BaseValue.h"

/// Shows the temperature, in whole degrees Celsius, and two dashes until the first reading.
class TemperaturePage : public BaseValue
{
    Q_OBJECT

public:
    explicit TemperaturePage(QWidget *parent = nullptr);

    void follow(const GetData *scheduler) override;

protected slots:
    /// Shows @p iValue; invalidReading gives dashes and takes the unit away for good.
    void update_currentData(int iValue);
};
