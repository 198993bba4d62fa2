import QtQuick
import Orvello

// The way through the tour: the way out on the left, the current page in the middle, the next page
// on the right.
Item {
    id: root

    required property WelcomeTour tour

    implicitHeight: 84

    TourButton {
        visible: !root.tour.isLastPage
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Skip tour")
        onClicked: root.tour.skip()
    }

    TourDots {
        // Where words are long they make room: on the left there is no button on the last page.
        readonly property double overlap: Math.max(0, (root.width + width) / 2 + 16 - (root.width - buttons.width - 28))

        anchors.centerIn: parent
        anchors.horizontalCenterOffset: -overlap
        count: root.tour.pageCount
        current: root.tour.page
    }

    Row {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: 28
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        TourButton {
            visible: !root.tour.isFirstPage
            text: qsTr("Back")
            onClicked: root.tour.previous()
        }
        TourButton {
            focus: true
            leadsOn: true
            text: root.tour.isLastPage ? qsTr("Open my prompter") : qsTr("Continue")
            onClicked: root.tour.next()
        }
    }
}
