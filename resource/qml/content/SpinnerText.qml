import QtQuick

// One row of a wheel, dimmer the farther it is from the current row.
Text {
    id: row

    // Rows between this one and the current one.
    property int distance: 0
    property list<color> shades: ["#00E5FF", "#A9A9AA", "#646464", "#373739"]

    // How far the middle of the line lies above the middle of what is written, whose foot stands
    // 0.38 of the font size below the middle of the row whatever the font.
    readonly property real lift: metrics.ascent - metrics.descent - font.pixelSize * 0.76

    height: 30
    topPadding: Math.max(0, -lift)
    bottomPadding: Math.max(0, lift)
    verticalAlignment: Text.AlignVCenter
    color: shades[Math.min(distance, shades.length - 1)]
    font.family: "Heiti SC"
    font.pixelSize: distance === 0 ? 36 : 24

    FontMetrics {
        id: metrics
        font: row.font
    }
}
