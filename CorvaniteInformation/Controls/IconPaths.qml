// SPDX-License-Identifier: Apache-2.0

pragma Singleton

import QtQml

/// The drawings of the icons as SVG path data on a grid of 24. They are stroked with round caps and
/// joins; `bullet` and `newerBuild` are filled by the odd-even rule.
QtObject {
    readonly property string add: "M12 5V19M5 12H19"
    readonly property string adjusted:
        "M3.5 6H12.5M17.5 6H20.5M17.5 6A2.5 2.5 0 1 1 12.5 6A2.5 2.5 0 1 1 17.5 6M3.5 12H6.5"
        + "M11.5 12H20.5M11.5 12A2.5 2.5 0 1 1 6.5 12A2.5 2.5 0 1 1 11.5 12M3.5 18H12.5M17.5 18"
        + "H20.5M17.5 18A2.5 2.5 0 1 1 12.5 18A2.5 2.5 0 1 1 17.5 18"
    readonly property string archive:
        "M4.1 4.5V8.75H8.35M4.6 8.75A8.25 8.25 0 1 1 3.8 12.9M12 7.5V12.25L15.1 14.1"
    readonly property string brand: "M12 4.5V14.25M7.75 10.25L12 14.5L16.25 10.25M6 19H18"
    readonly property string bullet: "M20 12A8 8 0 1 1 4 12A8 8 0 1 1 20 12Z"
    readonly property string close: "M6 6L18 18M18 6L6 18"
    readonly property string confirmed: "M5 12.75L9.75 17.5L19 7"
    readonly property string fold: "M5.5 15L12 8.5L18.5 15"
    readonly property string governance:
        "M12 2.75L19.25 5.5V11C19.25 15.75 16.25 19.35 12 21.25C7.75 19.35 4.75 15.75 4.75 11"
        + "V5.5ZM8.6 11.8L11.1 14.3L15.5 9.4"
    readonly property string kept:
        "M6 10H18A2 2 0 0 1 20 12V18.5A2 2 0 0 1 18 20.5H6A2 2 0 0 1 4 18.5V12A2 2 0 0 1 6 10"
        + "ZM6 6.75H18M8.25 3.5H15.75"
    readonly property string newerBuild:
        "M21.5 12A9.5 9.5 0 1 1 2.5 12A9.5 9.5 0 1 1 21.5 12ZM11.1 7.25V13.6L8.7 11.2"
        + "L7.45 12.45L12 17L16.55 12.45L15.3 11.2L12.9 13.6V7.25Z"
    readonly property string onward: "M9 5.5L15.5 12L9 18.5"
    readonly property string openOutside: "M7 17L17 7M8.75 7H17V15.25"
    readonly property string search:
        "M17 10.5A6.5 6.5 0 1 1 4 10.5A6.5 6.5 0 1 1 17 10.5M15.25 15.25L20.5 20.5"
    readonly property string sources:
        "M13.75 9.5A1.75 1.75 0 1 1 10.25 9.5A1.75 1.75 0 1 1 13.75 9.5M12 11.25V20.5"
        + "M8.75 20.5H15.25M8.3 13.2A5.25 5.25 0 0 1 8.3 5.8M15.7 5.8A5.25 5.25 0 0 1 15.7 13.2"
        + "M5.45 16.05A9.25 9.25 0 0 1 5.45 2.95M18.55 2.95A9.25 9.25 0 0 1 18.55 16.05"
    readonly property string sync:
        "M21 12A9 9 0 1 1 3 12A9 9 0 1 1 21 12M12 7.5V16.25M8.4 12.75L12 16.35L15.6 12.75"
    readonly property string syncing:
        "M19.8 4.75V9.25H15.3M19.4 9.25A8 8 0 0 0 4.6 9M4.2 19.25V14.75H8.7M4.6 14.75"
        + "A8 8 0 0 0 19.4 15"
    readonly property string today:
        "M10 5C10.5 9.7 12.3 11.5 17 12C12.3 12.5 10.5 14.3 10 19C9.5 14.3 7.7 12.5 3 12"
        + "C7.7 11.5 9.5 9.7 10 5ZM18.5 3V7.5M16.25 5.25H20.75M18.5 17.5V20.5M17 19H20"
    readonly property string unfold: "M5.5 9L12 15.5L18.5 9"
    readonly property string weekly:
        "M6 5H18A2.5 2.5 0 0 1 20.5 7.5V18A2.5 2.5 0 0 1 18 20.5H6A2.5 2.5 0 0 1 3.5 18V7.5"
        + "A2.5 2.5 0 0 1 6 5ZM3.5 10H20.5M8 2.75V6.5M16 2.75V6.5M7.75 14H10.25M13.75 14H16.25"
        + "M7.75 17H10.25"
    readonly property string windowMaximize: "M6.5 6.5H17.5V17.5H6.5Z"
    readonly property string windowMinimize: "M6 12H18"
    readonly property string windowRestore: "M6 9.5H14.5V18H6ZM9.5 9.5V6H18V14.5H14.5"
}
