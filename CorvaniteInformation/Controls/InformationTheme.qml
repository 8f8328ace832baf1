// SPDX-License-Identifier: Apache-2.0

pragma Singleton

import QtQuick
import CorvaniteInformation.Controls

/// The visual vocabulary of the program but for the type, which is TypeScale's. The window's ground and the cards are the desktop's own
/// colours; every other colour is a constant of the light or the dark theme.
QtObject {
    readonly property SystemPalette desktop: SystemPalette {}
    readonly property bool dark: ThemeRules.isDark(canvas)

    // Named colours, the same in both themes
    readonly property color agate: "#B5333D"
    readonly property color agateStrong: "#F26E78"
    readonly property color citrine: "#F2BA57"
    readonly property color citrineDark: "#8A590A"
    readonly property color malachite: "#78BD96"

    // Grounds
    readonly property color canvas: desktop.window
    readonly property color card: desktop.base
    readonly property color raised: dark ? "#3B3A39" : "#FFFFFF"
    readonly property color well: dark ? "#2C2B2B" : "#F6F5F4"
    readonly property color track: dark ? "#252525" : "#E2E0DE"
    readonly property color thumb: dark ? "#454341" : "#FFFFFF"
    readonly property color bannerWash: dark ? "#3B3326" : "#F9EFDB"
    readonly property color accentWash: dark ? "#3A2729" : "#F9EFF0"
    readonly property color blockedGround: "#33161A"
    readonly property color unstableGround: dark ? "#F3E7CE" : "#FBF3E2"
    readonly property color runningGround: dark ? "#F3E7CE" : "#F9EFDB"
    readonly property color selectedChip: dark ? "#EFECE8" : "#1F1C1A"
    readonly property color selection: dark ? "#42292B" : "#EADCDD"
    readonly property color scrim: dark ? Qt.alpha("#000000", 0.5) : Qt.alpha("#1F1C1A", 0.34)

    // Text: ink for what is read, ink2 for what goes with it, ink3 for numbers and hints
    readonly property color ownInk: dark ? "#EFECE8" : "#1F1C1A"
    readonly property bool ownInkReads: ThemeRules.inkReads(ownInk, canvas, card)
    readonly property color ink: ownInkReads ? ownInk : desktop.windowText
    readonly property color ink2: ownInkReads ? (dark ? "#BDB8B2" : "#56514C") : desktop.windowText
    readonly property color ink3: ownInkReads ? (dark ? "#AFAAA4" : "#67625D") : desktop.windowText
    readonly property color accent: dark ? "#F5858D" : agate
    readonly property color citrineInk: "#24170D"
    readonly property color brandInk: "#FFFFFF"
    readonly property color selectedChipInk: dark ? "#242424" : "#FFFFFF"

    // Lines
    readonly property color hair: dark ? "#434240" : "#DCDAD7"
    readonly property color hairStrong: dark ? "#575552" : "#C6C3BF"
    readonly property color control: dark ? "#8B8680" : "#85807A"
    readonly property color ring: accent
    readonly property color citrineTagBorder: Qt.alpha(citrineDark, 0.28)

    // States
    readonly property color citrinePressed: Qt.alpha(citrine, 0.78)
    readonly property color quietPressed: Qt.alpha(ink2, 0.08)
    readonly property color syncRest: Qt.alpha(ink2, 0.07)
    readonly property color syncPressed: Qt.alpha(ink2, 0.14)
    readonly property color chipPressed: Qt.alpha(ink, 0.06)
    readonly property color rowHover: Qt.alpha(ink, 0.05)
    readonly property color rowPressed: Qt.alpha(ink, 0.09)
    readonly property color scrollThumb: Qt.alpha(ink, 0.28)
    readonly property color scrollThumbHover: Qt.alpha(ink, 0.45)

    // One layer of the shadow under the receipt bar and tooltips, and under sheets and the alert
    readonly property color raisedShadow: Qt.alpha("#000000", dark ? 0.07 : 0.018)
    readonly property color sheetShadow: Qt.alpha("#000000", dark ? 0.06 : 0.016)

    // Texts

    /// A title, or whatever else names something, is cut off after so many lines.
    readonly property int longestName: 12

    // Radii
    readonly property int cardRadius: 14
    readonly property int sheetRadius: 16
    readonly property int receiptRadius: 12
    readonly property int citrineRadius: 10
    readonly property int searchRadius: 10
    readonly property int blockRadius: 10
    readonly property int quietRadius: 9
    readonly property int fieldRadius: 9
    readonly property int rowRadius: 8
    readonly property int segmentRadius: 7
    readonly property int tagRadius: 6

    // Motion, in milliseconds; with reduced motion nothing moves and no time passes
    property bool reducedMotion: false
    readonly property int pressDuration: reducedMotion ? 0 : 80
    readonly property int hoverDuration: reducedMotion ? 0 : 100
    readonly property int pageDuration: reducedMotion ? 0 : 120
    readonly property int surfaceDuration: reducedMotion ? 0 : 120
    readonly property int disclosureDuration: reducedMotion ? 0 : 200
    readonly property int chevronDuration: reducedMotion ? 0 : 160
    readonly property int receiptInDuration: reducedMotion ? 0 : 180
    readonly property int receiptOutDuration: reducedMotion ? 0 : 140
    readonly property int bannerDuration: reducedMotion ? 0 : 180
    readonly property int scrimDuration: reducedMotion ? 0 : 160
    readonly property int sheetInDuration: reducedMotion ? 0 : 180
    readonly property int sheetOutDuration: reducedMotion ? 0 : 120
    readonly property int syncTurnDuration: 900
}
