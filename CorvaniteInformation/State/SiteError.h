// SPDX-License-Identifier: Apache-2.0

#pragma once

/// Why a request to the product site brought no answer.
enum class SiteError {
    /// No connection, a certificate that is not trusted, a redirect that is not followed, a body
    /// cut short, a limit of time passed, or the client's end.
    Transport,
    /// The body passed the byte limit.
    TooLarge,
};
