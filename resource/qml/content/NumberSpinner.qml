import QtQuick

// A wheel of two-digit numbers from 00 on.
Rectangle {
    property alias model: spinner.model

    width: 150
    height: 320
    color: "#00FFFFFF"

    Column {
        x: 20
        y: 20
        spacing: 40

        Spinner {
            id: spinner
            width: 150
            height: 300
            focus: true
            itemHeight: 50
            delegate: SpinnerText {
                required property int index

                text: (index < 10 ? "0" : "") + index
                distance: spinner.distanceTo(index)
            }
        }
    }
}
