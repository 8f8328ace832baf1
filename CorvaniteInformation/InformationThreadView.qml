pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation

/// The sheet with a signal's whole thread: its main points, how it came to be, further sources, and
/// for a kept signal the reader's own note.
Sheet {
    id: sheet

    required property InformationModel workbench
    required property string signalId

    readonly property int sideMargin: 32

    width: 640
    height: Math.min(header.height + sections.height, parent.height - 72)
    title: threadPage.title

    onOpened: {
        threadPage.markSeen();
        closeButton.forceActiveFocus(openedByKeyboard ? Qt.TabFocusReason : Qt.PopupFocusReason);
    }

    ThreadPage {
        id: threadPage

        workbench: sheet.workbench
        signalId: sheet.signalId
    }

    Item {
        width: sheet.availableWidth
        height: sheet.availableHeight

        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.title

        Item {
            id: header

            width: parent.width
            height: heading.height

            Column {
                id: heading

                x: sheet.sideMargin
                width: closeButton.x - x
                topPadding: 24
                bottomPadding: 16
                spacing: 4

                EyebrowText {
                    text: "信息脉络"
                }

                HeadingText {
                    width: parent.width
                    text: threadPage.title
                    textStyle: InformationTheme.title1
                    maximumLineCount: 3
                    elide: Text.ElideRight
                }
            }

            QuietButton {
                id: closeButton

                anchors.right: parent.right
                anchors.rightMargin: sheet.sideMargin - rightPadding
                y: 24
                text: "关闭"
                onClicked: sheet.close()
            }

            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 1
                color: InformationTheme.hair
            }
        }

        Flickable {
            id: body

            y: header.height
            width: parent.width
            height: parent.height - y

            boundsBehavior: Flickable.StopAtBounds
            clip: true
            contentWidth: width
            contentHeight: sections.height

            Keys.forwardTo: [scroller]

            T.ScrollBar.vertical: OverlayScrollBar {}

            Column {
                id: sections

                x: sheet.sideMargin
                width: body.width - 2 * x
                topPadding: 20
                bottomPadding: 28
                spacing: 20

                Optional {
                    when: threadPage.hasDigest

                    ThreadSection {
                        width: sections.width
                        heading: "页内要点"
                        text: threadPage.digest
                    }
                }

                ThreadTimeline {
                    width: parent.width
                    rows: threadPage.timeline
                }

                Optional {
                    when: threadPage.originalAddress !== ""

                    CitrineButton {
                        text: "看最新原文"
                        iconPath: IconPaths.arrowUpRight
                        iconStroke: 2.25
                        iconTrails: true
                        onClicked: LinkOpener.open(threadPage.originalAddress)
                    }
                }

                Column {
                    width: parent.width
                    visible: threadPage.relatedSources.length > 0 || threadPage.kept
                    spacing: 16

                    Rectangle {
                        width: parent.width
                        height: 1
                        color: InformationTheme.hair
                    }

                    Column {
                        width: parent.width
                        spacing: 12

                        Optional {
                            when: threadPage.relatedSources.length > 0

                            RelatedSourceLinks {
                                width: sections.width
                                sources: threadPage.relatedSources
                            }
                        }

                        Optional {
                            when: threadPage.kept

                            KeptNote {
                                width: sections.width
                                thread: threadPage
                                onCursorMoved: (editor, y, height) => scroller.reveal(editor, y, height)
                            }
                        }
                    }
                }
            }
        }

        PaneScroller {
            id: scroller

            pane: body
        }
    }
}
