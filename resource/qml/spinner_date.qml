import QtQuick
import "content"

// A year around today: row 0 is today, the rows after it are the coming days, the rows before it
// (from the end of the wheel) the past ones.
Rectangle {
    id: root

    property date today: new Date()
    // In ms, from when today was taken. A midnight that the day lacks counts as an hour early: from
    // there on the day is asked for every second.
    readonly property int untilMidnight: Math.max(1000, new Date(today.getFullYear(),
        today.getMonth(), today.getDate() + 1) - today)
    readonly property var weekdays: [qsTr("星期天"), qsTr("星期一"), qsTr("星期二"),
        qsTr("星期三"), qsTr("星期四"), qsTr("星期五"), qsTr("星期六")]

    function dayText(row: int): string {
        const offset = row < 182 ? row : row - 365
        // At noon: where summer time begins at midnight, a day has no such hour.
        const day = new Date(today.getFullYear(), today.getMonth(), today.getDate() + offset, 12)
        const twoDigits = number => String(number).padStart(2, "0")
        return twoDigits(day.getMonth() + 1) + qsTr("月") + twoDigits(day.getDate()) + qsTr("日 ")
                + weekdays[day.getDay()]
    }

    width: 350
    height: 320
    color: "#00FFFFFF"

    // At midnight row 0 becomes the new day.
    Timer {
        running: true
        repeat: true
        interval: root.untilMidnight
        onTriggered: root.today = new Date()
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
