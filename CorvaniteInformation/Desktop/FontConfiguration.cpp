// SPDX-License-Identifier: Apache-2.0

#include "FontConfiguration.h"

#include <fontconfig/fontconfig.h>

std::future<void> FontConfiguration::readAhead()
{
    return std::async(std::launch::async, [] { FcInit(); });
}
