import QtQuick
import "content"

Rectangle {
    width: 150
    height: 160
    color: "#00FFFFFF"

    Column {
        x: 20
        y: 20
        spacing: 40

        Spinner {
            id: spinner
            width: 150
            height: 160
            focus: true
            model: 2
            itemHeight: 30
            delegate: SpinnerText {
                required property int index

                text: index === 0 ? qsTr("上午") : qsTr("下午")
                distance: spinner.distanceTo(index)
            }
        }
    }
}
