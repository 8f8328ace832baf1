// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The program's mark, name and motto.
Row {
    spacing: 12

    Rectangle {
        width: 36
        height: 36
        radius: 9
        color: InformationTheme.agate

        Icon {
            anchors.centerIn: parent
            path: IconPaths.brand
            size: 20
            color: InformationTheme.brandInk
        }
    }

    Column {
        HeadingText {
            text: "信息工作台"
            textStyle: TypeScale.brandName
        }

        Row {
            spacing: 6

            AppText {
                width: Math.ceil(implicitWidth)
                text: "corvanite"
                color: InformationTheme.ink2
                textStyle: TypeScale.captionBold
            }

            AppText {
                text: "AI 时代的信息管理工作台"
                color: InformationTheme.ink3
                textStyle: TypeScale.caption
            }
        }
    }
}
