// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The thickening of small letters that Qt 6.4 asks FreeType for. It makes regular text look
/// semi-bold, on a dark ground most of all.
namespace StemDarkening {

/// From now on letters are drawn as thick as their outlines, on this thread; those drawn already
/// stay. Needs the application object.
void switchOff();

} // namespace StemDarkening
