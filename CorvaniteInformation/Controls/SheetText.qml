// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A text of a sheet. A screen reader takes a static one for a label, and of a sheet's labels it says
/// those that have two spaces in them, in place of what the sheet says of itself.
AppText {
    Accessible.role: Accessible.Paragraph
}
