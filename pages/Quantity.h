#pragma once

#include <QCoreApplication>
#include <QStringView>
#include <algorithm>
#include <array>

/// The quantities that the device measures and shows: whoever adds one adds it here, and a page and
/// a tile for it in mainscreen/. Signals and slots carry a quantity as its number. Any thread.
enum class Quantity { Pm = 1, Temperature, Humidity };

/// What stands for a quantity on the screens.
struct QuantityLook
{
    Quantity quantity = Quantity::Pm;
    const char *title = ""; ///< in the language of the sources, see titleOf()
    QStringView unit;
    QStringView sign;        ///< a picture in the accent colour
    QStringView logo;        ///< a picture in white; none where the title serves
    QStringView unitPicture; ///< the unit beside its large number; none where the caption holds it
};

/// Every quantity, in the order of the numbers and of the main screen's pages.
inline constexpr std::array quantities{
    QuantityLook{.quantity = Quantity::Pm,
                 .title = QT_TRANSLATE_NOOP("Quantity", "PM2.5"),
                 .unit = u"μg/m³",
                 .sign = u":/resource/images/mainPage/logo/signPm.png",
                 .logo = {},
                 .unitPicture = {}},
    QuantityLook{.quantity = Quantity::Temperature,
                 .title = QT_TRANSLATE_NOOP("Quantity", "温度"),
                 .unit = u"℃",
                 .sign = u":/resource/images/mainPage/logo/signTemperature.png",
                 .logo = u":/resource/images/mainPage/logo/logoTemperature.png",
                 .unitPicture = u":/resource/images/mainPage/num/°C.png"},
    QuantityLook{.quantity = Quantity::Humidity,
                 .title = QT_TRANSLATE_NOOP("Quantity", "湿度"),
                 .unit = u"%",
                 .sign = u":/resource/images/mainPage/logo/signHumidity.png",
                 .logo = u":/resource/images/mainPage/logo/logoHumidity.png",
                 .unitPicture = u":/resource/images/mainPage/num/%.png"},
};

/// Finds the look of the quantity @p number; null where there is none of that number.
constexpr const QuantityLook *lookOf(int number)
{
    const auto *look = std::ranges::find(quantities, number,
                                         [](const QuantityLook &row) { return int(row.quantity); });
    return look != quantities.end() ? look : nullptr;
}

constexpr const QuantityLook &lookOf(Quantity quantity)
{
    return *lookOf(int(quantity));
}

/// Tells the title of a quantity in the language in use.
inline QString titleOf(const QuantityLook &look)
{
    return QCoreApplication::translate("Quantity", look.title);
}
