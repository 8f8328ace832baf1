// SPDX-License-Identifier: Apache-2.0

import QtQml

/// One surface of the workbench, as the switcher offers it.
QtObject {
    required property int surface
    required property string label
    required property string iconPath
}
