import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.LanguageBackend 1.0

PageScaffold {
    id: page

    property int current: 0

    Component.onCompleted: current = language.getCurrentSystemLanguage()

    LanguageBackend {
        id: language
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Display language")
        subtitle: qsTr("The language of this terminal's screens. Sessions keep their own language.")

        Repeater {
            // Menu order is the order the language settings are stored by; "Deutch" is shown as written.
            model: [
                { label: "English" },
                { label: "French" },
                { label: "Deutch" },
                { label: "Russian" }
            ]

            SettingsRow {
                Layout.fillWidth: true
                clickable: true
                showChevron: false
                iconName: index === page.current ? "check" : "globe"
                title: modelData.label
                onClicked: {
                    if (index === page.current)
                        return;
                    if (language.updateLanguage(index)) {
                        page.current = index;
                        toast.show(qsTr("Language changed."), "success");
                    } else {
                        toast.show(qsTr("The %1 translation could not be loaded; the language was not changed.").arg(modelData.label), "error");
                    }
                }
            }
        }
    }

    Toast {
        id: toast
    }
}
