import QtQuick

// A wheel of rows to turn with a finger or the up and down keys; the current row stands in the
// middle of the path.
Image {
    id: spinner

    objectName: "wheel"

    property alias model: view.model
    property alias delegate: view.delegate
    property alias currentIndex: view.currentIndex
    readonly property alias moving: view.moving
    property real itemHeight: 50
    // Kept[row-pitch]: from one row to the next. Larger than a row: the places share a way that begins half a row
    // above the wheel and ends a whole row below it.
    readonly property real pitch: (height + itemHeight * 1.5) / (height / itemHeight)
    readonly property real middle: height / 2 + itemHeight / 4

    // How many rows lie between a row and the current one, the shorter way round.
    function distanceTo(row: int): int {
        const direct = Math.abs(row - currentIndex)
        return Math.min(direct, view.count - direct)
    }

    // Puts a row in the middle at once; setting currentIndex lets the wheel glide there.
    function startAt(row: int) {
        view.positionViewAtIndex(row, PathView.Center)
    }

    // Turns the wheel on to the next row, or back to the one before.
    function stepOn() { view.incrementCurrentIndex() }
    function stepBack() { view.decrementCurrentIndex() }

    // The ground of the pages, from full to nothing: rows come and go softly.
    component SoftEnd: Rectangle {
        property real solid: 0

        width: spinner.width
        height: solid + 40
        gradient: Gradient {
            GradientStop { position: 0; color: "#212121" }
            GradientStop { position: solid / height; color: "#212121" }
            GradientStop { position: 1; color: "#00212121" }
        }
    }

    clip: true
    Keys.onUpPressed: stepBack()
    Keys.onDownPressed: stepOn()

    PathView {
        id: view

        // One place more than fits: as many rows above the current one as below it, and the outer
        // ones stand ready before they are turned into sight.
        readonly property real reach: spinner.pitch * pathItemCount / 2

        anchors.fill: parent
        pathItemCount: spinner.height / spinner.itemHeight + 1
        preferredHighlightBegin: 0.5
        preferredHighlightEnd: 0.5
        dragMargin: width / 2
        path: Path {
            startX: view.width / 2
            startY: spinner.middle - view.reach

            PathLine {
                x: view.width / 2
                y: spinner.middle + view.reach
            }
        }
    }

    // As far above the current row as the wheel reaches below it.
    SoftEnd { solid: spinner.itemHeight / 2 }
    SoftEnd {
        anchors.bottom: parent.bottom
        rotation: 180
    }
}
