// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The bottom of the window: where the reader's things are kept, and the links to the site.
Rectangle {
    id: footer

    required property FramePage page

    readonly property int sideMargin: width >= 1040 ? 24 : 20
    readonly property bool oneRow: notes.width + 24 + links.width <= width - 2 * sideMargin

    implicitHeight: oneRow ? 36 : 64
    color: InformationTheme.canvas

    Accessible.role: Accessible.StatusBar

    component FooterLink: LinkText {
        activeFocusOnPress: false
        textStyle: TypeScale.caption
        restTint: InformationTheme.ink2
    }

    component SurfaceLink: FooterLink {
        required property int surface

        onClicked: footer.page.workbench.surface = surface
    }

    component SiteLink: FooterLink {
        required property string path

        onClicked: LinkOpener.open(footer.page.workbench.sitePage(path))
    }

    Hairline {}

    Row {
        id: notes

        x: footer.sideMargin
        y: 10
        spacing: 8

        AppText {
            text: "收下的内容与偏好保存在当前设备"
            color: InformationTheme.ink3
            textStyle: TypeScale.caption
            wrapMode: Text.NoWrap
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            visible: syncNote.visible
            width: 3
            height: 3
            radius: 1.5
            color: InformationTheme.ink3
        }

        AppText {
            id: syncNote

            visible: text !== ""
            text: footer.page.syncNote
            color: footer.page.syncFailed ? InformationTheme.accent : InformationTheme.ink2
            textStyle: TypeScale.caption
            wrapMode: Text.NoWrap
            Accessible.ignored: true

            Announcement {
                text: syncNote.text
            }
        }
    }

    Row {
        id: links

        anchors.right: parent.right
        anchors.rightMargin: footer.sideMargin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 2
        spacing: footer.width >= 980 ? 16 : 12

        Accessible.role: Accessible.Grouping
        Accessible.name: "站点导航"

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            text: "站点导航"
            color: InformationTheme.ink3
            textStyle: TypeScale.caption
            wrapMode: Text.NoWrap
        }

        SurfaceLink {
            text: "往期精选"
            surface: InformationModel.Archive
        }

        SurfaceLink {
            text: "周报精选"
            surface: InformationModel.Weekly
        }

        SurfaceLink {
            text: "信源清单"
            surface: InformationModel.Sources
        }

        SiteLink {
            text: "编辑方法"
            path: "method"
        }

        SiteLink {
            text: "关于"
            path: "about"
        }

        SiteLink {
            text: "管线状态"
            path: "status"
        }

        SiteLink {
            text: "RSS"
            path: "feed.xml"
        }
    }
}
