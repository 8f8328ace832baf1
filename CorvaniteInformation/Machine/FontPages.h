// SPDX-License-Identifier: Apache-2.0

#pragma once

/// What stands in memory of the files of fonts. Around each place that a letter is read from the
/// system maps sixteen pages, though a letter is read once and kept as a picture.
namespace FontPages {

/// Gives them back. A letter that is read later brings its own again.
void giveBack();

} // namespace FontPages
