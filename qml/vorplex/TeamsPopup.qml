import QtQuick 2.15
import QtQuick.Window 2.15
import com.TeamsConnector 1.0

// Small always-on-top button near the top-right corner while Microsoft Teams runs;
// clicking it brings the Teams window back to the front.
Window {
    id: popup

    property bool teamsRunning: false

    function check() {
        teamsRunning = teams.isTeamsRunning();
        if (teamsRunning) {
            x = Screen.width - 80;
            y = 80;
            show();
            raise();
        } else {
            hide();
        }
    }

    width: 64
    height: 64
    minimumWidth: 64
    minimumHeight: 64
    maximumWidth: 64
    maximumHeight: 64
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.WindowDoesNotAcceptFocus
    // Opaque: without a compositor a transparent window shows black corners.
    color: "#5B5FC7"
    title: qsTr("Microsoft Teams")
    visible: false

    TeamsConnector {
        id: teams
    }

    Timer {
        interval: 1000
        repeat: true
        running: true
        onTriggered: popup.check()
    }

    Rectangle {
        anchors.fill: parent
        color: area.pressed ? "#444791" : area.containsMouse ? "#4F52B2" : "#5B5FC7"
        border.color: "#444791"
        border.width: 1

        // Teams' mark: a "T" with a person beside it.
        Text {
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: -4
            text: "T"
            color: "#FFFFFF"
            font.family: "Roboto"
            font.pixelSize: 28
            font.weight: Font.Bold
        }

        Rectangle {
            x: parent.width - 22
            y: 16
            width: 9
            height: 9
            radius: 4.5
            color: "#FFFFFF"
            opacity: 0.9
        }

        Rectangle {
            x: parent.width - 24
            y: 27
            width: 13
            height: 15
            radius: 5
            color: "#FFFFFF"
            opacity: 0.9
        }
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: teams.teamsToFront()
    }
}
