#pragma once

#include "mainscreen/BaseValue.h"

/// The page of the temperature, in whole degrees Celsius. Shows two dashes until the first reading.
class TemperaturePage : public BaseValue
{
    Q_OBJECT

public:
    explicit TemperaturePage(QWidget *parent = nullptr);

protected slots:
    /// Shows @p iValue; invalidReading gives dashes and takes the unit away for good.
    void update_currentData(int iValue);

private:
    /// Connects the readings.
    friend class MainView;
};
