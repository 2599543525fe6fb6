import QtQuick
import QtQuick.Window

// An application's icon, loaded for one size and drawn at that of what it is in.
Image {
    required property real size // pixels that it is loaded for

    anchors.fill: parent
    sourceSize { width: Math.round(size * Screen.devicePixelRatio); height: Math.round(size * Screen.devicePixelRatio) }
    asynchronous: true
    smooth: true
    Accessible.ignored: true
}
