// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The end of the card that holds the list of everything where that stands in the column: the data
/// receipt.
CardSlice {
    id: end

    required property TodayPage page

    first: false
    last: true
    ruled: false

    DataReceipt {
        x: 21
        width: end.width - 2 * x
        bottomPadding: 20
        page: end.page
    }
}
