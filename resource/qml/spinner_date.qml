import QtQuick
import "content"

// A year around today: row 0 is today, the rows after it are the coming days, the rows before it
// (from the end of the wheel) the past ones.
Rectangle {
    id: root

    property date today: new Date()
    readonly property var weekdays: [qsTr("星期天"), qsTr("星期一"), qsTr("星期二"),
        qsTr("星期三"), qsTr("星期四"), qsTr("星期五"), qsTr("星期六")]

    function dayText(row: int): string {
        const offset = row < 182 ? row : row - 365
        const day = new Date(today.getFullYear(), today.getMonth(), today.getDate() + offset)
        const twoDigits = number => String(number).padStart(2, "0")
        return twoDigits(day.getMonth() + 1) + qsTr("月") + twoDigits(day.getDate()) + qsTr("日 ")
                + weekdays[day.getDay()]
    }

    width: 350
    height: 320
    color: "#00FFFFFF"

    // At midnight row 0 becomes the new day.
    Timer {
        function untilMidnight(): int {
            const now = new Date()
            return new Date(now.getFullYear(), now.getMonth(), now.getDate() + 1) - now
        }

        running: true
        repeat: true
        interval: untilMidnight()
        onTriggered: {
            root.today = new Date()
            interval = untilMidnight()
        }
    }

    Column {
        x: 20
        y: 20
        spacing: 40

        Spinner {
            id: spinner
            width: 300
            height: 300
            focus: true
            model: 365
            itemHeight: 50
            delegate: SpinnerText {
                required property int index

                text: root.dayText(index)
                distance: spinner.distanceTo(index)
            }
        }
    }
}
