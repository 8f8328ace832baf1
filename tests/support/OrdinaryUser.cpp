// SPDX-License-Identifier: Apache-2.0

#include "OrdinaryUser.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

bool actAsOrdinaryUser()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
    if (::syscall(SYS_capget, &header, data) != 0) {
        return false;
    }
    const __u32 overriding = (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH);
    data[0].effective &= ~overriding;
    data[0].permitted &= ~overriding;
    return ::syscall(SYS_capset, &header, data) == 0;
}
