// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Screens.Workbench
import "../controls"

ButtonTestCase {
    name: "WorkbenchButtonsTest"
    buttons: [
        {tag: "sync", component: sync, role: Accessible.Button, height: 34, label: "同步站点"},
        {tag: "segment", component: segment, role: Accessible.PageTab, height: 30, label: "今天"}
    ]

    Component {
        id: sync
        SyncButton {
            running: false
        }
    }

    Component {
        id: segment
        SurfaceSegment {
            text: "今天"
            selected: true
        }
    }

    function test_syncWhileRunning() {
        const button = made(sync, {running: true});
        compare(button.text, "同步中");
        compare(button.Accessible.name, "同步中");
        compare(button.iconPath, IconPaths.syncing);
        verify(!button.enabled);
        button.running = false;
        compare(button.text, "同步站点");
        compare(button.iconPath, IconPaths.sync);
        compare(button.iconRotation, 0);
        verify(button.enabled);
    }

    function test_theSyncIconTurnsUnlessMotionIsReduced() {
        const button = made(sync, {running: true});
        tryVerify(() => button.iconRotation > 0);
        InformationTheme.reducedMotion = true;
        compare(button.iconRotation, 0);
        InformationTheme.reducedMotion = false;
    }
}
