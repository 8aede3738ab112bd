import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.TimeBackend 1.0

PageScaffold {
    id: page

    property date chosenDate: new Date()
    property date shownMonth: new Date()
    property bool use24: true
    // The chosen day moved by arrow keys keeps the keyboard focus.
    property bool dayByKey: false
    readonly property var hours24: page.numbers(0, 23)
    readonly property var hours12: page.numbers(1, 12)
    readonly property var minutes: page.numbers(0, 59)

    function numbers(from, to) {
        var list = [];
        for (var i = from; i <= to; ++i)
            list.push(i < 10 ? "0" + i : "" + i);
        return list;
    }

    function load() {
        TimeBackend.updateTimezones();
        TimeBackend.updateLocalTimezone();
        var zones = TimeBackend.listTimezones();
        zoneBox.model = zones;
        var current = TimeBackend.getCurrentTimeZone();
        zoneBox.currentIndex = page.labelFor(zones, current);
        chosenDate = TimeBackend.getCurrentDate();
        shownMonth = chosenDate;
        use24 = TimeBackend.is24();
        formatControl.currentIndex = use24 ? 1 : 0;
        loadTime();
        ntpField.text = TimeBackend.getNtp();
    }

    // The first label naming the zone; for a zone the list does not name, the first label naming
    // its city (Europe/Berlin is listed under Amsterdam, Berlin, ...).
    function labelFor(zones, zone) {
        if (zone === "")
            return -1;
        var city = zone.substring(zone.lastIndexOf("/") + 1).replace(/_/g, " ");
        var byCity = -1;
        for (var i = 0; i < zones.length; ++i) {
            if (zones[i].indexOf(zone) >= 0)
                return i;
            if (byCity < 0 && city !== "" && new RegExp("[ /]" + city + "(,|$)").test(zones[i]))
                byCity = i;
        }
        return byCity;
    }

    function loadTime() {
        var hour = TimeBackend.getHour(-1, use24);
        hourBox.model = use24 ? hours24 : hours12;
        hourBox.currentIndex = hourBox.model.indexOf(hour);
        minuteBox.currentIndex = minutes.indexOf(TimeBackend.getMinute());
        amPmControl.currentIndex = TimeBackend.getAmOrPm(-1) === "PM" ? 1 : 0;
    }

    function ntpError(server) {
        if (server === "")
            return "";
        return /^[A-Za-z0-9]([A-Za-z0-9.-]{0,252})$/.test(server) && server.indexOf("..") < 0
            ? "" : qsTr("Enter a host name or address such as pool.ntp.org.");
    }

    function apply() {
        ntpField.errorText = ntpError(ntpField.text.trim());
        if (ntpField.errorText !== "")
            return;
        if (zoneBox.currentIndex < 0) {
            toast.show(qsTr("Choose a time zone."), "error");
            return;
        }
        TimeBackend.setDate(chosenDate);
        TimeBackend.set24(use24);
        TimeBackend.setTimezone(zoneBox.currentText);
        TimeBackend.setHour(parseInt(hourBox.currentText, 10));
        TimeBackend.setMinute(parseInt(minuteBox.currentText, 10));
        TimeBackend.setAmOrPm(amPmControl.currentIndex === 1 ? "PM" : "AM");
        TimeBackend.setNtp(ntpField.text.trim());
        TimeBackend.applyWithTime();
        load();
        toast.show(qsTr("Date and time settings applied."), "success");
    }

    Component.onCompleted: load()

    Timer {
        interval: 1000
        running: page.visible
        repeat: true
        triggeredOnStart: true
        onTriggered: nowText.text = TimeBackend.format(new Date(), page.use24 ? "dddd d MMMM yyyy, HH:mm:ss" : "dddd d MMMM yyyy, hh:mm:ss AP")
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Date and time")
        subtitle: qsTr("Without a time server the clock keeps the date and time set here.")

        Text {
            id: nowText
            Layout.fillWidth: true
            color: Theme.textSecondary
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            elide: Text.ElideRight
        }

        GridLayout {
            Layout.fillWidth: true
            columns: page.columnWidth > 720 ? 2 : 1
            columnSpacing: Theme.spacingXl
            rowSpacing: Theme.spacingL

            // Month calendar
            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 7 * 44
                spacing: Theme.spacingS

                RowLayout {
                    Layout.fillWidth: true
                    IconButton {
                        iconName: "back"
                        text: qsTr("Previous month")
                        onClicked: page.shownMonth = new Date(page.shownMonth.getFullYear(), page.shownMonth.getMonth() - 1, 1)
                    }
                    Text {
                        Layout.fillWidth: true
                        horizontalAlignment: Text.AlignHCenter
                        text: Qt.locale().standaloneMonthName(page.shownMonth.getMonth()) + " " + page.shownMonth.getFullYear()
                        color: Theme.text
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBodyLarge
                        font.weight: Font.DemiBold
                        elide: Text.ElideRight
                    }
                    IconButton {
                        iconName: "chevron-right"
                        text: qsTr("Next month")
                        onClicked: page.shownMonth = new Date(page.shownMonth.getFullYear(), page.shownMonth.getMonth() + 1, 1)
                    }
                }

                Grid {
                    id: monthGrid
                    columns: 7
                    spacing: 2

                    // Weeks start on Monday.
                    readonly property date first: new Date(page.shownMonth.getFullYear(), page.shownMonth.getMonth(), 1)
                    readonly property int lead: (first.getDay() + 6) % 7

                    Repeater {
                        model: 7
                        Text {
                            width: 42
                            height: 24
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                            text: Qt.locale().dayName((index + 1) % 7, Locale.ShortFormat)
                            color: Theme.textMuted
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontCaption
                        }
                    }

                    Repeater {
                        model: 42
                        delegate: Rectangle {
                            id: day
                            readonly property date value: new Date(monthGrid.first.getFullYear(), monthGrid.first.getMonth(), index - monthGrid.lead + 1)
                            readonly property bool inMonth: value.getMonth() === monthGrid.first.getMonth()
                            readonly property bool chosen: value.getFullYear() === page.chosenDate.getFullYear()
                                                           && value.getMonth() === page.chosenDate.getMonth()
                                                           && value.getDate() === page.chosenDate.getDate()
                            width: 42
                            height: 34
                            radius: Theme.radiusS
                            color: chosen ? Theme.accent : dayArea.containsMouse ? Theme.surfaceHover : "transparent"
                            border.width: activeFocus ? 2 : 0
                            border.color: Theme.accent
                            activeFocusOnTab: chosen
                            Accessible.role: Accessible.Button
                            Accessible.name: value.toLocaleDateString(Qt.locale(), Locale.LongFormat)

                            function choose(date, byKey) {
                                page.dayByKey = byKey;
                                page.chosenDate = date;
                                if (date.getMonth() !== page.shownMonth.getMonth() || date.getFullYear() !== page.shownMonth.getFullYear())
                                    page.shownMonth = date;
                            }
                            Keys.onLeftPressed: choose(new Date(value.getFullYear(), value.getMonth(), value.getDate() - 1), true)
                            Keys.onRightPressed: choose(new Date(value.getFullYear(), value.getMonth(), value.getDate() + 1), true)
                            Keys.onUpPressed: choose(new Date(value.getFullYear(), value.getMonth(), value.getDate() - 7), true)
                            Keys.onDownPressed: choose(new Date(value.getFullYear(), value.getMonth(), value.getDate() + 7), true)
                            onChosenChanged: if (chosen && page.dayByKey) forceActiveFocus()

                            Text {
                                anchors.centerIn: parent
                                text: day.value.getDate()
                                color: day.chosen ? Theme.textOnAccent : day.inMonth ? Theme.text : Theme.textDisabled
                                font.family: Theme.fontFamily
                                font.pixelSize: Theme.fontBody
                            }
                            MouseArea {
                                id: dayArea
                                anchors.fill: parent
                                hoverEnabled: true
                                onClicked: day.choose(day.value, false)
                            }
                        }
                    }
                }
            }

            // Time
            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                spacing: Theme.spacingL

                SettingsRow {
                    Layout.fillWidth: true
                    iconName: "clock"
                    title: qsTr("Clock format")
                    SegmentedControl {
                        id: formatControl
                        model: [qsTr("12-hour"), qsTr("24-hour")]
                        onActivated: {
                            page.use24 = index === 1;
                            page.loadTime();
                        }
                    }
                }

                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.spacingS

                    FormComboBox {
                        id: hourBox
                        objectName: "hourBox"
                        Layout.fillWidth: true
                        label: qsTr("Hour")
                    }
                    FormComboBox {
                        id: minuteBox
                        objectName: "minuteBox"
                        Layout.fillWidth: true
                        label: qsTr("Minute")
                        model: page.minutes
                    }
                    SegmentedControl {
                        id: amPmControl
                        objectName: "amPmControl"
                        Layout.alignment: Qt.AlignBottom
                        visible: !page.use24
                        model: [qsTr("AM"), qsTr("PM")]
                    }
                }

                FormComboBox {
                    id: zoneBox
                    objectName: "zoneBox"
                    Layout.fillWidth: true
                    label: qsTr("Time zone")
                    placeholderText: qsTr("Choose a time zone")
                }

                FormField {
                    id: ntpField
                    objectName: "ntpField"
                    Layout.fillWidth: true
                    label: qsTr("Time server (NTP)")
                    placeholderText: "pool.ntp.org"
                    hintText: qsTr("Leave empty to set the clock by hand.")
                    onEdited: errorText = ""
                    onAccepted: page.apply()
                }
            }
        }

        PrimaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "check"
            text: qsTr("APPLY")
            onClicked: page.apply()
        }
    }

    Toast {
        id: toast
    }
}
