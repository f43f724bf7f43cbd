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

    component Stroke: Rectangle {
        anchors.centerIn: parent
        width: 11.4
        height: 1.6
        color: "#909090"
        antialiasing: true
    }

    // The other half of the day is out of sight: what leads to it is not.
    component Step: Item {
        id: step

        signal tapped()

        anchors.horizontalCenter: parent.left
        anchors.horizontalCenterOffset: 94
        width: 96
        height: 56

        Rectangle {
            anchors.centerIn: parent
            width: 72
            height: 40
            radius: 18
            color: "#2100e5ff"
            border { width: 1; color: "#8000e5ff" }
            visible: touch.pressed
        }
        // Drawn and no picture, whose texture Qt's software renderer would leave behind with the page.
        Stroke {
            anchors.horizontalCenterOffset: -3.5
            rotation: -45
        }
        Stroke {
            anchors.horizontalCenterOffset: 3.5
            rotation: 45
        }
        TapHandler {
            id: touch
            onTapped: step.tapped()
        }
    }

    Step {
        y: 25
        onTapped: spinner.stepBack()
    }
    Step {
        y: 133
        rotation: 180
        onTapped: spinner.stepOn()
    }
}
