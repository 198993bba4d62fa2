import QtQuick
import Orvello

// The way through the tour: out of it on the left, where one is in the middle, on on the right.
Item {
    id: root

    required property OnboardingTour tour

    implicitHeight: 84

    OnboardingButton {
        visible: !root.tour.isLastPage
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Skip tour")
        onClicked: root.tour.skip()
    }

    OnboardingDots {
        anchors.centerIn: parent
        count: root.tour.pageCount
        current: root.tour.page
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: 28
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        OnboardingButton {
            visible: !root.tour.isFirstPage
            text: qsTr("Back")
            onClicked: root.tour.goBack()
        }
        OnboardingButton {
            focus: true
            leadsOn: true
            text: root.tour.isLastPage ? qsTr("Open my prompter") : qsTr("Continue")
            onClicked: root.tour.goOn()
        }
    }
}
