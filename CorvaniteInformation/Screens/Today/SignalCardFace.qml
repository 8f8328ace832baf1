// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The face of a card: the strata mark at the left, and everything else on one axis beside it.
Item {
    id: face

    required property signalCardRow row

    signal changeToggled
    signal keepToggled
    signal similarReduced

    implicitHeight: content.implicitHeight

    SignalStrataView {
        signalID: face.row.signalId
        color: face.row.laneColor
        side: 44
    }

    Column {
        id: content

        x: 64
        width: parent.width - x
        spacing: 12

        Column {
            width: parent.width
            spacing: 8

            SignalCardMeta {
                width: parent.width
                row: face.row
            }

            Optional {
                when: face.row.reachabilityTag !== ""

                ReachabilityLine {
                    row: face.row
                }
            }

            HeadingText {
                width: parent.width
                text: face.row.title
                maximumLineCount: 3
                elide: Text.ElideRight
            }
        }

        Column {
            width: parent.width
            spacing: 8

            LabelledText {
                width: parent.width
                label: "为什么值得看："
                text: face.row.why
            }

            LabelledText {
                width: parent.width
                label: "最大限制："
                text: face.row.caveat
                color: InformationTheme.ink2
            }
        }

        Column {
            width: parent.width
            spacing: 16

            Column {
                width: parent.width
                spacing: 4

                // The line is taller than it looks, to be easy to press.
                Item {
                    width: parent.width
                    implicitHeight: source.textHeight

                    SourceLink {
                        id: source

                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(implicitWidth, parent.width)
                        text: face.row.sourceLine
                        address: face.row.originalAddress
                        textStyle: TypeScale.meta
                        restTint: InformationTheme.ink3
                        Accessible.name: face.row.originalName
                        Accessible.description: source.enabled ? face.row.sourceLine : ""
                    }
                }

                Optional {
                    when: face.row.hasChange

                    QuietButton {
                        id: disclosure

                        x: -leftPadding
                        implicitHeight: 32
                        text: "看变化"
                        restTint: InformationTheme.accent
                        iconPath: face.row.changeOpen ? IconPaths.fold : IconPaths.unfold
                        iconSize: 14
                        iconTrails: true
                        Accessible.description: face.row.changeOpen ? "已展开" : "已收起"
                        onClicked: face.changeToggled()

                        DisclosureAnnouncement {
                            button: disclosure
                            description: disclosure.Accessible.description
                            Accessible.description: face.row.changeOpen ? face.row.change : ""
                        }
                    }
                }

                ChangeBlock {
                    width: parent.width
                    open: face.row.changeOpen
                    text: face.row.change
                }
            }

            Row {
                x: -keep.shift
                height: 38
                spacing: 8

                KeepButton {
                    id: keep

                    anchors.verticalCenter: parent.verticalCenter
                    kept: face.row.kept
                    Accessible.name: face.row.keepName
                    onClicked: face.keepToggled()
                }

                QuietButton {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "这类少看"
                    Accessible.name: face.row.reduceName
                    onClicked: face.similarReduced()
                }
            }
        }
    }
}
