import QtQuick

// One row of a wheel, dimmer the farther it is from the current row.
Text {
    // Rows between this one and the current one.
    property int distance: 0
    property list<color> shades: ["#00E5FF", "#A9A9AA", "#646464", "#373739"]

    height: 30
    verticalAlignment: Text.AlignVCenter
    color: shades[Math.min(distance, shades.length - 1)]
    font.family: "Heiti SC"
    font.pixelSize: distance === 0 ? 36 : 24
}
