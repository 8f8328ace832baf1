// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The documents of an edition.
enum class DocumentKind { Pack, RetiredList, AppVersion, Registry };
