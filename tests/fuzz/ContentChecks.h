// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationContent.h"

/// What holds of content from the site, whatever it is: a model opens over it, every list and page
/// can be made, the reader can act on it, and what the reader does stands in the file.
void checkContent(const InformationContent& content);
